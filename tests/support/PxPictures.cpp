#include "PxPictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QSize>
#include <QtEndian>

#include <array>
#include <map>
#include <utility>

namespace {

QByteArray bigEndian(quint32 number)
{
    number = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&number), 4);
}

QByteArray littleEndian(quint32 number, int size = 4)
{
    number = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&number), size);
}

quint32 checkSum(const QByteArray &bytes)
{
    static const auto table = [] {
        std::array<quint32, 256> sums;
        for (quint32 i = 0; i < 256; ++i) {
            sums[i] = i;
            for (int bit = 0; bit < 8; ++bit)
                sums[i] = (sums[i] >> 1) ^ ((sums[i] & 1) != 0 ? 0xEDB88320U : 0U);
        }
        return sums;
    }();
    quint32 sum = ~0U;
    for (const char c : bytes)
        sum = table[(sum ^ uchar(c)) & 0xFF] ^ (sum >> 8);
    return ~sum;
}

QByteArray png(const QSize &size, const QByteArray &kind, const QByteArray &chunks,
               const QByteArray &pixels)
{
    using PxPictures::chunk;
    return "\x89PNG\r\n\x1A\n" +
           chunk("IHDR",
                 bigEndian(quint32(size.width())) + bigEndian(quint32(size.height())) + kind) +
           chunks + chunk("IDAT", pixels) + chunk("IEND", "");
}

/** Codes of a GIF, which go up from the lowest bit; any number of them. */
class Codes
{
public:
    void append(int code, int bits)
    {
        m_left |= quint32(code) << m_count;
        for (m_count += bits; m_count >= 8; m_count -= 8) {
            m_bytes.append(char(m_left & 0xFF));
            m_left >>= 8;
        }
    }
    QByteArray bytes() const { return m_bytes + char(m_left); }

private:
    QByteArray m_bytes;
    quint32 m_left = 0;
    int m_count = 0;
};

} // namespace

QByteArray PxPictures::chunk(const QByteArray &type, const QByteArray &data)
{
    return bigEndian(quint32(data.size())) + type + data + bigEndian(checkSum(type + data));
}

QByteArray PxPictures::png(const QSize &size, const QByteArray &chunks, const QByteArray &pixels)
{
    const QByteArray own =
        pixels.isEmpty() ? qCompress(QByteArray((size.width() + 1) * size.height(), '\0')).mid(4)
                         : pixels;
    return ::png(size, QByteArray("\x08\0\0\0\0", 5), chunks, own);
}

QByteArray PxPictures::slowPng(const QSize &size)
{
    QByteArray pixels;
    constexpr int passes[][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                 {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    for (const auto &pass : passes) {
        const int columns = (size.width() - pass[0] + pass[2] - 1) / pass[2];
        const int rows = (size.height() - pass[1] + pass[3] - 1) / pass[3];
        pixels += ('\4' + QByteArray(columns * 8, '\1')).repeated(rows);
    }
    return ::png(size, QByteArray("\x10\6\0\0\1", 5), {}, qCompress(pixels, 1).mid(4));
}

QByteArray PxPictures::endlessPixels(int size, int literals)
{
    // A block of deflate's fixed code: zeros, and copies of 258 bytes, eight of them in 13 bytes.
    Codes codes;
    codes.append(2, 3);
    for (int i = 0; i < literals; ++i)
        codes.append(0x0C, 8);
    for (int i = 0; i < 16; ++i)
        codes.append(0xA3, 13);
    const QByteArray bytes = codes.bytes();
    return "\x78\x01" + bytes.left(literals + 1) + bytes.mid(literals + 1, 13).repeated(size / 13);
}

QByteArray PxPictures::jpeg(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(0x336699);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    writer.write(image);
    return buffer.data();
}

QByteArray PxPictures::jpegWithScans(const QSize &size, int scans)
{
    const QByteArray good = jpeg(size);
    const int last = good.lastIndexOf("\xFF\xDA");
    return good.chopped(2) + good.mid(last).chopped(2).repeated(scans) + "\xFF\xD9";
}

QByteArray PxPictures::jpegSegment(char marker, const QByteArray &data)
{
    return QByteArray("\xFF") + marker + bigEndian(quint32(data.size() + 2)).mid(2) + data;
}

QByteArray PxPictures::emptyJpeg(char marker, const QSize &size, const QByteArray &samplings,
                                 int scans)
{
    QByteArray frame = '\x08' + bigEndian(quint32(size.height())).mid(2) +
                       bigEndian(quint32(size.width())).mid(2) + char(samplings.size());
    for (const char sampling : samplings)
        frame += QByteArray("\1") + sampling + '\1';
    return "\xFF\xD8" + jpegSegment(marker, frame) + jpegSegment('\xDA', "").repeated(scans) +
           "\xFF\xD9";
}

QByteArray PxPictures::withSegments(const QByteArray &jpeg, const QByteArray &segments)
{
    return jpeg.left(2) + segments + jpeg.mid(2);
}

QByteArray PxPictures::lzwCodes(const QByteArray &colors, int colorBits, int clearAfter)
{
    const int clear = 1 << colorBits;
    Codes codes;
    std::map<std::pair<int, char>, int> table; // by code and colour behind it
    int bits = colorBits + 1;
    int known = uchar(colors.at(0));
    const auto append = [&](int code, char next) {
        codes.append(code, bits);
        const int added = clear + 2 + int(table.size());
        if (added == 1 << bits && bits < 12)
            ++bits;
        if (added < 4096)
            table[{code, next}] = added;
    };
    for (int i = 1; i < colors.size(); ++i) {
        const char next = colors.at(i);
        const auto longer = table.find({known, next});
        if (longer != table.end()) {
            known = longer->second;
            continue;
        }
        append(known, next);
        known = uchar(next);
        if (int(table.size()) == clearAfter) {
            codes.append(clear, bits);
            table.clear();
            bits = colorBits + 1;
        }
    }
    append(known, 0);
    codes.append(clear + 1, bits);
    return codes.bytes();
}

QByteArray PxPictures::gif(const QSize &screen, const QSize &frame, qint64 colors)
{
    constexpr int clear = 256;
    Codes codes;
    codes.append(clear, 9);
    codes.append(0, 9);
    qint64 done = 1;
    int bits = 9;
    for (int next = clear + 2; done < colors; next = qMin(next + 1, 4096)) {
        // The newest code is one colour longer than the one before it.
        codes.append(qMin(next, 4095), bits);
        done += qMin(next, 4095) - clear;
        if (next + 1 == 1 << bits && bits < 12)
            ++bits;
    }
    codes.append(clear + 1, bits);
    const QByteArray data = codes.bytes();
    QByteArray blocks;
    for (int i = 0; i < data.size(); i += 255)
        blocks += char(qMin(255, data.size() - i)) + data.mid(i, 255);
    const auto size = [](const QSize &s) {
        return littleEndian(quint32(s.width()), 2) + littleEndian(quint32(s.height()), 2);
    };
    return "GIF89a" + size(screen) + QByteArray("\xF7\0\0", 3) + QByteArray(3 * 256, '\x55') + ',' +
           QByteArray(4, '\0') + size(frame) + QByteArray("\0\x08", 2) + blocks +
           QByteArray("\0;", 2);
}

QByteArray PxPictures::bmp(const QSize &size, int bits, int compression, const QByteArray &pixels)
{
    const QByteArray colors = bits <= 8 ? QByteArray(4 << bits, '\x55') : QByteArray();
    const int offset = 54 + colors.size();
    return "BM" + littleEndian(quint32(offset + pixels.size())) + littleEndian(0) +
           littleEndian(quint32(offset)) + littleEndian(40) + littleEndian(quint32(size.width())) +
           littleEndian(quint32(size.height())) + littleEndian(1, 2) +
           littleEndian(quint32(bits), 2) + littleEndian(quint32(compression)) +
           QByteArray(20, '\0') + colors + pixels;
}

QByteArray PxPictures::ico(const QByteArray &picture)
{
    return QByteArray("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0", 14) +
           littleEndian(quint32(picture.size())) + littleEndian(22) + picture;
}
