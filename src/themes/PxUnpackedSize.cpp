#include "themes/PxUnpackedSize.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace {

/** Reads bits, starting with the lowest bit of each byte. */
class BitReader
{
public:
    explicit BitReader(const QByteArray &bytes)
        : m_next(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
    {}

    /** Reads up to 16 bits; -1 if fewer are left. */
    int read(int count)
    {
        for (; m_count < count; m_count += 8) {
            if (m_next == m_end)
                return -1;
            m_bits |= quint32(uchar(*m_next++)) << m_count;
        }
        const quint32 bits = m_bits & ((1U << count) - 1);
        m_bits >>= count;
        m_count -= count;
        return int(bits);
    }

    /** Skips the remaining bits of a byte that was read in part. */
    void skipRestOfByte()
    {
        m_bits >>= m_count % 8;
        m_count -= m_count % 8;
    }

private:
    const char *m_next;
    const char *m_end;
    quint32 m_bits = 0;
    int m_count = 0; // number of bits
};

/** A canonical Huffman code as in deflate, defined by the code length of each symbol. */
class HuffmanCode
{
public:
    HuffmanCode(const quint8 *lengths, int count)
    {
        for (int i = 0; i < count; ++i)
            ++m_countOfLength[lengths[i]];
        m_countOfLength[0] = 0;
        std::array<int, 16> next{};
        for (int length = 1; length < 15; ++length)
            next[length + 1] = next[length] + m_countOfLength[length];
        for (int i = 0; i < count; ++i) {
            if (lengths[i] != 0)
                m_symbols[next[lengths[i]]++] = quint16(i);
        }
    }

    /** Reads the next symbol; -1 if there is none. */
    int read(BitReader &bits) const
    {
        int code = 0;
        int first = 0;
        int index = 0;
        for (int length = 1; length <= 15; ++length) {
            const int bit = bits.read(1);
            if (bit < 0)
                return -1;
            code |= bit;
            const int count = m_countOfLength[length];
            if (code - first < count)
                return m_symbols[index + code - first];
            index += count;
            first = (first + count) * 2;
            code *= 2;
        }
        return -1;
    }

private:
    std::array<int, 16> m_countOfLength{};
    std::array<quint16, 320> m_symbols{};
};

class Deflated
{
public:
    Deflated(const QByteArray &data, qint64 limit) : m_bits(data), m_limit(limit) {}

    qint64 size()
    {
        m_bits.read(16); // the header of zlib
        bool isLast = false;
        bool isGood = true;
        while (isGood && !isLast && m_size <= m_limit) {
            isLast = m_bits.read(1) != 0;
            switch (m_bits.read(2)) {
            case 0:
                isGood = countStored();
                break;
            case 1:
                isGood = countFixed();
                break;
            case 2:
                isGood = countDynamic();
                break;
            default:
                isGood = false;
            }
        }
        return m_size;
    }

private:
    bool countStored()
    {
        m_bits.skipRestOfByte();
        const int length = m_bits.read(16);
        m_bits.read(16); // the complement of the length
        for (int i = 0; i < length; ++i) {
            if (m_bits.read(8) < 0)
                return false;
            ++m_size;
        }
        return length >= 0;
    }

    bool countFixed()
    {
        std::array<quint8, 288> lengths;
        std::fill(lengths.begin(), lengths.begin() + 144, 8);
        std::fill(lengths.begin() + 144, lengths.begin() + 256, 9);
        std::fill(lengths.begin() + 256, lengths.begin() + 280, 7);
        std::fill(lengths.begin() + 280, lengths.end(), 8);
        std::array<quint8, 30> distances;
        distances.fill(5);
        return count(HuffmanCode(lengths.data(), 288), HuffmanCode(distances.data(), 30));
    }

    bool countDynamic()
    {
        constexpr int order[] = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
        const int lengthCount = m_bits.read(5) + 257;
        const int distanceCount = m_bits.read(5) + 1;
        const int orderCount = m_bits.read(4) + 4;
        std::array<quint8, 320> lengths{};
        for (int i = 0; i < orderCount; ++i)
            lengths[order[i]] = quint8(std::max(m_bits.read(3), 0));
        const HuffmanCode codeOfLengths(lengths.data(), 19);
        lengths.fill(0);
        const int all = lengthCount + distanceCount;
        for (int i = 0; i < all;) {
            const int symbol = codeOfLengths.read(m_bits);
            if (symbol < 0)
                return false;
            if (symbol < 16) {
                lengths[i++] = quint8(symbol);
                continue;
            }
            const quint8 repeated = symbol == 16 && i > 0 ? lengths[i - 1] : 0;
            const int times = symbol == 16   ? 3 + m_bits.read(2)
                              : symbol == 17 ? 3 + m_bits.read(3)
                                             : 11 + m_bits.read(7);
            for (int k = 0; k < times && i < all; ++k)
                lengths[i++] = repeated;
        }
        return count(HuffmanCode(lengths.data(), lengthCount),
                     HuffmanCode(lengths.data() + lengthCount, distanceCount));
    }

    /** Counts a block of literals and of lengths with distances. */
    bool count(const HuffmanCode &lengths, const HuffmanCode &distances)
    {
        constexpr int endOfBlock = 256;
        while (m_size <= m_limit) {
            const int symbol = lengths.read(m_bits);
            if (symbol <= endOfBlock) {
                if (symbol < 0 || symbol == endOfBlock)
                    return symbol == endOfBlock;
                ++m_size;
                continue;
            }
            const int step = symbol - endOfBlock - 1;
            if (step < 8) {
                m_size += 3 + step;
            } else if (step == 28) {
                m_size += 258;
            } else {
                const int extraBits = step / 4 - 1;
                m_size += 3 + ((4 + step % 4) << extraBits) + m_bits.read(extraBits);
            }
            const int distance = distances.read(m_bits);
            if (distance < 0 || (distance >= 4 && m_bits.read(distance / 2 - 1) < 0))
                return false;
        }
        return true;
    }

    BitReader m_bits;
    qint64 m_limit;
    qint64 m_size = 0;
};

} // namespace

qint64 PxUnpackedSize::ofDeflated(const QByteArray &data, qint64 limit)
{
    return Deflated(data, limit).size();
}

qint64 PxUnpackedSize::ofLzw(const QByteArray &data, int colorBits, qint64 limit)
{
    constexpr int maximumBits = 12;
    if (colorBits < 0 || colorBits >= maximumBits)
        return 0;
    const int clear = 1 << colorBits;
    std::array<int, 1 << maximumBits> lengths; // unpacked length of each code
    lengths.fill(1);
    int codeCount = clear + 2;
    int codeBits = colorBits + 1;
    int previous = -1; // none, after a clear code
    qint64 size = 0;
    BitReader bits(data);
    while (size <= limit) {
        const int code = bits.read(codeBits);
        if (code < 0 || code == clear + 1)
            break;
        if (code == clear) {
            codeCount = clear + 2;
            codeBits = colorBits + 1;
            previous = -1;
            continue;
        }
        if (previous < 0) {
            ++size;
            previous = code;
            continue;
        }
        const int lengthOfNext = lengths[previous] + 1;
        size += code < codeCount ? lengths[code] : lengthOfNext;
        if (codeCount < int(lengths.size())) {
            lengths[codeCount++] = lengthOfNext;
            if (codeCount == 1 << codeBits && codeBits < maximumBits)
                ++codeBits;
        }
        previous = code;
    }
    return size;
}
