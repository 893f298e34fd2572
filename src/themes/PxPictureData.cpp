#include "themes/PxPictureData.h"

#include "themes/PxUnpackedSize.h"

#include <QBuffer>
#include <QIODevice>
#include <QImage>
#include <QImageReader>
#include <QMap>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace {

/** Behind the end all bytes are 0. */
int byteAt(const QByteArray &file, qint64 position)
{
    return uchar(file.constData()[std::min<qint64>(position, file.size())]); // has a zero there
}

/** A number of the type, such as quint16_le, whose first byte is at the position. */
template <class Number>
Number numberAt(const QByteArray &file, qint64 position)
{
    std::array<uchar, sizeof(Number)> bytes;
    for (uchar &byte : bytes)
        byte = uchar(byteAt(file, position++));
    Number number;
    std::memcpy(&number, bytes.data(), bytes.size());
    return number;
}

/** The contents of the blocks of a GIF from a position on, joined. Moves it behind them. */
QByteArray gifBlocks(const QByteArray &file, qint64 *position)
{
    QByteArray blocks;
    while (const int size = byteAt(file, (*position)++)) {
        blocks.append(file.mid(int(*position), size));
        *position += size;
    }
    return blocks;
}

/**
 * The number of samples in the blocks of a JPEG. Blocks are complete even at the edges of the
 * picture.
 */
qint64 jpegSamples(const QByteArray &file, qint64 frame, qint64 width, qint64 height)
{
    constexpr qint64 blockSize = 8;
    const int components = byteAt(file, frame + 7);
    int mostAcross = 1;
    int mostDown = 1;
    int blocks = 0; // in the smallest part of the picture that has all components
    for (qint64 i = 0; i < components; ++i) {
        const int sampling = byteAt(file, frame + 9 + 3 * i);
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
    if (std::min(m_width, m_height) <= 0)
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
    QByteArrayList ancillary{"cHRM", "gAMA", "iCCP", "oFFs", "pHYs", "sRGB", "tRNS"};
    const QByteArray file = m_bytes;
    QByteArray pixels;
    int position = 8;
    m_isCutOff = true;
    m_bytes.truncate(position);
    m_bytes.reserve(file.size());
    while (m_isCutOff) {
        const qint64 length = numberAt<quint32_be>(file, position);
        const QByteArray chunk =
            QByteArray::fromRawData(file.constData() + position,
                                    int(std::min<qint64>(12 + length, file.size() - position)));
        if (chunk.isEmpty())
            break;
        const QByteArray type = chunk.mid(4, 4);
        const bool isCritical = byteAt(type, 0) >= 'A' && byteAt(type, 0) <= 'Z';
        if (isCritical || ancillary.removeOne(type))
            m_bytes.append(chunk);
        if (type == "IDAT")
            pixels.append(chunk.mid(8, int(std::min<qint64>(length, chunk.size()))));
        m_isCutOff = type != "IEND" || chunk.size() < 12 + length;
        position += chunk.size();
    }
    // libpng requires this chunk to be the first one, too.
    if (m_bytes.mid(8, 8) == QByteArray("\0\0\0\x0DIHDR", 8)) {
        m_width = numberAt<quint32_be>(m_bytes, 16);
        m_height = numberAt<quint32_be>(m_bytes, 20);
    }
    m_unpackedSize = PxUnpackedSize::ofDeflated(pixels, maximumUnpackedSize);
}

void PxPictureData::readJpeg()
{
    constexpr int mostIccSegments = 255; // they are numbered with a byte
    constexpr char mark = '\xFF';
    const QByteArray file = m_bytes;
    QMap<int, int> segmentsOfMarker;
    qint64 kept = 0; // all bytes before this one are handled
    qint64 position = 2;
    m_isCutOff = true;
    m_bytes.clear();
    while (m_isCutOff) {
        // Finds the next marker as libjpeg does, behind a segment and within the data of a scan.
        const int begin = file.indexOf(mark, int(position));
        if (begin == -1)
            break;
        position = begin;
        while (byteAt(file, position) == 0xFF)
            ++position;
        const int marker = byteAt(file, position++);
        m_isCutOff = marker != 0xD9;                            // the end
        if (marker < 0xC0 || (marker >= 0xD0 && marker < 0xDA)) // no length follows
            continue;
        const qint64 segment = position;
        const int length = std::max<int>(numberAt<quint16_be>(file, segment), 2);
        position = std::min<qint64>(segment + length, file.size());
        const bool isFrame = (marker & 0xF0) == 0xC0 && marker != 0xC4 && marker != 0xC8 &&
                             marker != 0xCC; // those three are tables, or reserved
        if (isFrame && marker > 0xC2) {
            m_isOtherJpeg = true;
        } else if (isFrame && m_height == 0) {
            m_height = numberAt<quint16_be>(file, segment + 3);
            m_width = numberAt<quint16_be>(file, segment + 5);
            m_samples = jpegSamples(file, segment, m_width, m_height);
            m_isProgressive = marker == 0xC2;
        } else if (marker == 0xDA) {
            ++m_scans;
        } else if (marker >= 0xE0) {
            // Only format, colour profile and colour transformation are needed. libjpeg takes
            // quadratic time for many of these segments, as it does for comments.
            const bool isNeeded = marker == 0xE0 || marker == 0xE2 || marker == 0xEE;
            if (!isNeeded || ++segmentsOfMarker[marker] > mostIccSegments) {
                m_bytes.append(file.mid(int(kept), int(begin - kept)));
                kept = position;
            }
        }
    }
    m_bytes.append(file.mid(int(kept)));
}

void PxPictureData::readGif()
{
    const auto sizeOfColors = [this](qint64 position) {
        const int flags = byteAt(m_bytes, position);
        return flags >= 0x80 ? 3 << ((flags & 7) + 1) : 0;
    };
    qint64 position = 13 + sizeOfColors(10);
    bool hasFrame = false;
    for (;;) {
        const int introducer = byteAt(m_bytes, position);
        if (introducer == ',') { // a frame; decoders read the first one
            const qint64 frame = position + 1;
            position = frame + 9 + sizeOfColors(frame + 8);
            const int colorBits = byteAt(m_bytes, position++);
            const QByteArray codes = gifBlocks(m_bytes, &position);
            if (!hasFrame) {
                const auto word = [this](qint64 at) { return numberAt<quint16_le>(m_bytes, at); };
                // The screen may be much larger than the frame, and the frame may reach beyond the
                // screen.
                m_width = std::max<qint64>(word(6), word(frame) + word(frame + 4));
                m_height = std::max<qint64>(word(8), word(frame + 2) + word(frame + 6));
                m_unpackedSize = PxUnpackedSize::ofLzw(codes, colorBits, maximumUnpackedSize);
            }
            hasFrame = true;
        } else if (introducer == '!') {
            position += 2;
            gifBlocks(m_bytes, &position);
        } else {
            // Some files end behind the frame, without the end mark.
            m_isCutOff = position + (hasFrame ? 0 : 1) > m_bytes.size();
            return;
        }
    }
}

void PxPictureData::readBmp()
{
    qint64 bits{};
    quint32 compression = 0;
    switch (numberAt<quint32_le>(m_bytes, 14)) { // the size of the header
    case 12:
        m_width = numberAt<quint16_le>(m_bytes, 18);
        m_height = numberAt<quint16_le>(m_bytes, 20);
        bits = numberAt<quint16_le>(m_bytes, 24);
        break;
    case 40:
    case 64:
    case 108:
    case 124:
        m_width = numberAt<qint32_le>(m_bytes, 18);
        m_height = qAbs(qint64(numberAt<qint32_le>(m_bytes, 22))); // negative from top to bottom
        bits = numberAt<quint16_le>(m_bytes, 28);
        compression = numberAt<quint32_le>(m_bytes, 30);
        break;
    default:
        m_isCutOff = m_bytes.size() < 18;
        return;
    }
    constexpr quint32 bitFields = 3;
    if (compression != 0 && compression != bitFields)            // run lengths
        m_isCutOff = !m_bytes.endsWith(QByteArray("\0\1", 2)) && // the end
                     qint64(numberAt<quint32_le>(m_bytes, 2)) > m_bytes.size();
    else if (fault().isEmpty())
        m_isCutOff = numberAt<quint32_le>(m_bytes, 10) + (m_width * bits + 31) / 32 * 4 * m_height >
                     m_bytes.size();
}
