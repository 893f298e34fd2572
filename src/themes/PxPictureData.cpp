#include "themes/PxPictureData.h"

#include "themes/PxUnpackedSize.h"

#include <QBuffer>
#include <QIODevice>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace {

/**
 * The number of samples in the blocks of a JPEG. Blocks are complete even at the edges of the
 * picture.
 */
qint64 jpegSamples(const QByteArray &frame, qint64 width, qint64 height)
{
    constexpr qint64 blockSize = 8;
    const int components = frame.size() > 7 ? uchar(frame.at(7)) : 0;
    int mostAcross = 1;
    int mostDown = 1;
    int blocks = 0; // in the smallest part of the picture that has all components
    for (int i = 0; i < components && 9 + 3 * i < frame.size(); ++i) {
        const int sampling = uchar(frame.at(9 + 3 * i));
        const int across = sampling >> 4;
        const int down = sampling & 15;
        mostAcross = std::max(mostAcross, across);
        mostDown = std::max(mostDown, down);
        blocks += across * down;
    }
    const auto parts = [](qint64 length, int most) {
        return (length + blockSize * most - 1) / (blockSize * most);
    };
    return parts(width, mostAcross) * parts(height, mostDown) * blocks * blockSize * blockSize;
}

} // namespace

PxPictureData::PxPictureData(const QByteArray &file) : m_bytes(file)
{
    const struct
    {
        const char *begin;
        const char *format;
        void (PxPictureData::*read)();
    } rows[] = {
        {"\x89PNG\r\n\x1A\n", "png", &PxPictureData::readPng},
        {"\xFF\xD8", "jpeg", &PxPictureData::readJpeg},
        {"GIF87a", "gif", &PxPictureData::readGif},
        {"GIF89a", "gif", &PxPictureData::readGif},
        {"BM", "bmp", &PxPictureData::readBmp},
    };
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [&](const auto &row) { return file.startsWith(row.begin); });
    if (found == std::end(rows))
        return;
    m_format = found->format;
    (this->*found->read)();
}

QString PxPictureData::fault() const
{
    if (m_format.isEmpty())
        return QStringLiteral("is no PNG, JPEG, GIF or BMP picture");
    if (m_isOtherJpeg)
        return QStringLiteral("is a JPEG that is neither baseline nor progressive");
    if (m_width <= 0 || m_height <= 0)
        return m_isCutOff ? QStringLiteral("is cut off") : QStringLiteral("is damaged");
    if (m_width > maximumPixels / m_height)
        return QStringLiteral("is too large: %1 x %2 pixels, no more than %3 are allowed")
            .arg(m_width)
            .arg(m_height)
            .arg(maximumPixels);
    if (m_unpackedSize > maximumUnpackedSize)
        return QStringLiteral("is too large: its pixels take more than %1 bytes, for %2 x %3")
            .arg(maximumUnpackedSize)
            .arg(m_width)
            .arg(m_height);
    constexpr int usualScans = 10;
    const bool isKept = m_isProgressive || m_scans > 1;
    const qint64 samples = std::max(m_samples, minimumScannedSamples);
    if (samples * (isKept ? std::max(m_scans, usualScans) : m_scans) > maximumScannedSamples)
        return QStringLiteral("is too slow: a JPEG of %1 scans over %2 samples, no more than %3 "
                              "together are allowed")
            .arg(m_scans)
            .arg(samples)
            .arg(maximumScannedSamples);
    return QString();
}

QImage PxPictureData::decoded() const
{
    if (!fault().isEmpty())
        return QImage();
    QBuffer buffer;
    buffer.setData(m_bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, m_format);
    reader.setAutoDetectImageFormat(false); // try no other format
    return reader.read();
}

void PxPictureData::readPng()
{
    // Ancillary chunks that are kept. Each occurs at most once, and none is required.
    constexpr const char *ancillaryChunks[] = {"cHRM", "gAMA", "iCCP", "oFFs",
                                               "pHYs", "sRGB", "tRNS"};
    bool isKept[std::size(ancillaryChunks)] = {};
    const QByteArray file = m_bytes;
    QByteArray pixels;
    m_isCutOff = true;
    m_bytes.truncate(8);
    m_bytes.reserve(file.size());
    for (qint64 position = 8; m_isCutOff && position + 8 <= file.size();) {
        m_bytes.append(file.constData() + position, 8);
        const qint64 length = bigEndian(m_bytes.size() - 8, 4);
        const QByteArray type = m_bytes.right(4);
        const qint64 end = std::min<qint64>(position + 12 + length, file.size());
        const auto kind = std::find(std::begin(ancillaryChunks), std::end(ancillaryChunks), type) -
                          std::begin(ancillaryChunks);
        const bool isCritical = type.at(0) >= 'A' && type.at(0) <= 'Z';
        if (isCritical || (kind < qint64(std::size(isKept)) && !isKept[kind])) {
            m_bytes.append(file.constData() + position + 8, int(end - position - 8));
            if (!isCritical)
                isKept[kind] = true;
        } else {
            m_bytes.chop(8);
        }
        if (type == "IDAT")
            pixels.append(file.constData() + position + 8,
                          int(std::min(length, end - position - 8)));
        m_isCutOff = type != "IEND" || end < position + 12 + length;
        position = position + 12 + length;
    }
    // libpng requires this chunk to be the first one, too.
    if (m_bytes.mid(8, 8) == QByteArray("\0\0\0\x0DIHDR", 8)) {
        m_width = bigEndian(16, 4);
        m_height = bigEndian(20, 4);
    }
    m_unpackedSize = PxUnpackedSize::ofDeflated(pixels, maximumUnpackedSize);
}

void PxPictureData::readJpeg()
{
    constexpr int mostIccSegments = 255; // they are numbered with a byte
    constexpr char mark = '\xFF';
    const QByteArray file = m_bytes;
    int applicationSegments[16] = {};
    qint64 kept = 0; // all bytes before this one are handled
    qint64 position = 2;
    m_isCutOff = true;
    m_bytes.clear();
    while (m_isCutOff) {
        // Finds the next marker as libjpeg does, behind a segment and within the data of a scan.
        const qint64 begin = file.indexOf(mark, int(position));
        if (begin < 0)
            break;
        position = begin;
        while (position < file.size() && file.at(int(position)) == mark)
            ++position;
        if (position == file.size())
            break;
        const int marker = uchar(file.at(int(position++)));
        const bool hasNoLength = marker < 0xC0 || (marker >= 0xD0 && marker <= 0xD9);
        m_isCutOff = marker != 0xD9; // the end
        if (hasNoLength)
            continue;
        const auto word = [&](qint64 at) {
            return at + 2 <= file.size()
                       ? uchar(file.at(int(at))) * 256 + uchar(file.at(int(at + 1)))
                       : 0;
        };
        const qint64 segment = position;
        position = std::min<qint64>(segment + std::max(word(segment), 2), file.size());
        if (marker >= 0xC0 && marker <= 0xC2) {
            if (m_height == 0) {
                m_height = word(segment + 3);
                m_width = word(segment + 5);
                m_samples = jpegSamples(file.mid(int(segment), 8 + 3 * 255), m_width, m_height);
                m_isProgressive = marker == 0xC2;
            }
        } else if (marker == 0xDA) {
            ++m_scans;
        } else if (marker < 0xD0 && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
            m_isOtherJpeg = true;
        } else if (marker >= 0xE0) {
            // Only format, colour profile and colour transformation are needed. libjpeg takes
            // quadratic time for many of these segments, as it does for comments.
            const bool isNeeded = marker == 0xE0 || marker == 0xE2 || marker == 0xEE;
            if (!isNeeded || ++applicationSegments[marker - 0xE0] > mostIccSegments) {
                m_bytes.append(file.constData() + kept, int(begin - kept));
                kept = position;
            }
        }
    }
    m_bytes.append(file.constData() + kept, int(file.size() - kept));
}

void PxPictureData::readGif()
{
    const auto sizeOfColors = [this](qint64 flags) {
        return (byteAt(flags) & 0x80) != 0 ? 3 << ((byteAt(flags) & 7) + 1) : 0;
    };
    qint64 position = 13 + sizeOfColors(10);
    bool hasFrame = false;
    for (;;) {
        const int introducer = byteAt(position);
        if (introducer == ',') { // a frame; decoders read the first one
            const qint64 frame = position + 1;
            position = frame + 9 + sizeOfColors(frame + 8);
            const int colorBits = byteAt(position++);
            const QByteArray codes = gifBlocks(&position);
            if (!hasFrame) {
                // The screen may be much larger than the frame, and the frame may reach beyond the
                // screen.
                m_width = std::max(littleEndian(6, 2),
                                   littleEndian(frame, 2) + littleEndian(frame + 4, 2));
                m_height = std::max(littleEndian(8, 2),
                                    littleEndian(frame + 2, 2) + littleEndian(frame + 6, 2));
                m_unpackedSize = PxUnpackedSize::ofLzw(codes, colorBits, maximumUnpackedSize);
            }
            hasFrame = true;
        } else if (introducer == '!') {
            position += 2;
            gifBlocks(&position);
        } else {
            // Some files end behind the frame, without the end mark.
            m_isCutOff = introducer < 0 && !(hasFrame && position == m_bytes.size());
            return;
        }
    }
}

void PxPictureData::readBmp()
{
    const qint64 headerSize = littleEndian(14, 4);
    int bits = 0;
    int compression = 0;
    switch (headerSize) {
    case 12:
        m_width = littleEndian(18, 2);
        m_height = littleEndian(20, 2);
        bits = int(littleEndian(24, 2));
        break;
    case 40:
    case 64:
    case 108:
    case 124:
        m_width = qint32(littleEndian(18, 4));
        m_height = qAbs(qint64(qint32(littleEndian(22, 4)))); // negative from top to bottom
        bits = int(littleEndian(28, 2));
        compression = int(littleEndian(30, 4));
        break;
    default:
        m_isCutOff = m_bytes.size() < 18;
        return;
    }
    constexpr int bitFields = 3;
    if (compression != 0 && compression != bitFields)            // run lengths
        m_isCutOff = !m_bytes.endsWith(QByteArray("\0\1", 2)) && // the end
                     littleEndian(2, 4) > m_bytes.size();
    else if (m_width > 0 && m_height > 0 && m_width <= maximumPixels / m_height)
        m_isCutOff =
            littleEndian(10, 4) + (m_width * bits + 31) / 32 * 4 * m_height > m_bytes.size();
}

/** The byte at a position; -1 behind the end. */
int PxPictureData::byteAt(qint64 position) const
{
    return position < m_bytes.size() ? uchar(m_bytes.at(int(position))) : -1;
}

/** Bytes behind the end count as 0. */
qint64 PxPictureData::bigEndian(qint64 position, int size) const
{
    qint64 number = 0;
    for (int i = 0; i < size; ++i)
        number = number * 256 + std::max(byteAt(position + i), 0);
    return number;
}

qint64 PxPictureData::littleEndian(qint64 position, int size) const
{
    qint64 number = 0;
    for (int i = size; i-- > 0;)
        number = number * 256 + std::max(byteAt(position + i), 0);
    return number;
}

/** The contents of the blocks from a position on, joined. Moves the position behind them. */
QByteArray PxPictureData::gifBlocks(qint64 *position) const
{
    QByteArray blocks;
    int size = 0;
    while ((size = byteAt((*position)++)) > 0) {
        blocks.append(m_bytes.mid(int(std::min<qint64>(*position, m_bytes.size())), size));
        *position += size;
    }
    return blocks;
}
