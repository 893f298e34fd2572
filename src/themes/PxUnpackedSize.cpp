#include "themes/PxUnpackedSize.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>

namespace {

constexpr int none = -1;

/** Reads bits, starting with the lowest bit of each byte. */
class BitReader
{
public:
    explicit BitReader(const QByteArray &bytes)
        : m_next(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
    {}

    /** Reads up to 16 bits; none if fewer are left, and from then on. */
    int read(int count)
    {
        for (; m_count < count; m_count += 8) {
            if (m_next == m_end)
                return stop();
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
        m_bits = 0;
        m_count = 0;
    }

    /** Skips bytes; returns how many of them there were. Only behind the rest of a byte. */
    int skipBytes(int count)
    {
        const int skipped = std::min(count, int(m_end - m_next));
        m_next += skipped;
        return skipped;
    }

    /** Ends the data here. */
    int stop()
    {
        skipRestOfByte();
        m_next = m_end;
        return none;
    }

private:
    const char *m_next;
    const char *m_end;
    quint32 m_bits = 0;
    int m_count = 0; // number of bits, which are less than a byte
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
        std::array<int, 17> next{};
        std::partial_sum(m_countOfLength.begin(), m_countOfLength.end(), next.begin() + 1);
        for (int i = 0; i < count; ++i) {
            if (lengths[i] != 0)
                m_symbols[next[lengths[i]]++] = quint16(i);
        }
    }

    /** Reads the next symbol. If there is none, the data end here. */
    int read(BitReader &bits) const
    {
        int code = 0;  // less the first code of the same length
        int index = 0; // of the symbol with that first code
        for (const int count : m_countOfLength) {
            if (code < count)
                return m_symbols[index + code];
            index += count;
            const int bit = bits.read(1);
            if (bit == none)
                return none;
            code = (code - count) * 2 + bit;
        }
        return bits.stop();
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
        while (!isLast && m_size <= m_limit) {
            isLast = m_bits.read(1) != 0;
            switch (m_bits.read(2)) {
            case 0:
                countStored();
                break;
            case 1:
                countFixed();
                break;
            case 2:
                countDynamic();
                break;
            default:
                return m_size;
            }
        }
        return m_size;
    }

private:
    void countStored()
    {
        m_bits.skipRestOfByte();
        const int length = m_bits.read(16);
        m_bits.read(16); // the complement of the length
        m_size += m_bits.skipBytes(std::max(length, 0));
    }

    void countFixed()
    {
        std::array<quint8, 288> lengths;
        lengths.fill(8);
        std::fill(lengths.begin() + 256, lengths.begin() + 280, 7);
        std::fill(lengths.begin() + 144, lengths.begin() + 256, 9);
        std::array<quint8, 30> distances;
        distances.fill(5);
        count(HuffmanCode(lengths.data(), int(lengths.size())),
              HuffmanCode(distances.data(), int(distances.size())));
    }

    void countDynamic()
    {
        constexpr int order[] = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
        const int lengthCount = m_bits.read(5) + 257;
        const int distanceCount = m_bits.read(5) + 1;
        const int orderCount = m_bits.read(4) + 4;
        std::array<quint8, 320 + 138> lengths{}; // the last repetition may go too far
        for (int i = 0; i < orderCount; ++i)
            lengths[order[i]] = quint8(std::max(m_bits.read(3), 0));
        const HuffmanCode codeOfLengths(lengths.data(), int(std::size(order)));
        quint8 length{};
        for (int i = 0; i < lengthCount + distanceCount;) {
            const int symbol = codeOfLengths.read(m_bits);
            if (symbol == none)
                return;
            length = symbol < 16 ? quint8(symbol) : symbol == 16 ? length : 0;
            const int times = symbol < 16    ? 1
                              : symbol == 16 ? 3 + m_bits.read(2)
                              : symbol == 17 ? 3 + m_bits.read(3)
                                             : 11 + m_bits.read(7);
            std::fill_n(lengths.begin() + i, times, length);
            i += times;
        }
        count(HuffmanCode(lengths.data(), lengthCount),
              HuffmanCode(lengths.data() + lengthCount, distanceCount));
    }

    /** Counts a block of literals and of lengths with distances. */
    void count(const HuffmanCode &lengths, const HuffmanCode &distances)
    {
        constexpr int endOfBlock = 256;
        while (m_size <= m_limit) {
            const int symbol = lengths.read(m_bits);
            if (symbol == none || symbol == endOfBlock)
                return;
            const int step = symbol - endOfBlock - 1;
            if (step < 0) { // a literal
                ++m_size;
                continue;
            }
            if (step < 8) {
                m_size += 3 + step;
            } else if (step == 28) {
                m_size += 258;
            } else {
                const int extraBits = step / 4 - 1;
                m_size += 3 + ((4 + step % 4) << extraBits) + m_bits.read(extraBits);
            }
            const int distance = distances.read(m_bits);
            m_bits.read(std::max(distance / 2 - 1, 0));
        }
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
    // Unpacked length of each code. It outlives a clear code, as in decoders, which unpack any
    // code.
    std::array<int, 1 << maximumBits> lengths;
    lengths.fill(1);
    int codeCount = clear + 2;
    int codeBits = colorBits + 1;
    int previous = none; // after a clear code
    qint64 size = 0;
    BitReader bits(data);
    while (size <= limit) {
        const int code = bits.read(codeBits);
        if (code == none || code == clear + 1)
            break;
        if (code == clear) {
            codeCount = clear + 2;
            codeBits = colorBits + 1;
            previous = none;
            continue;
        }
        if (previous == none) {
            ++size;
            previous = code;
            continue;
        }
        const int lengthOfNext = lengths[previous] + 1;
        size += code < codeCount ? lengths[code] : lengthOfNext;
        if (codeCount != int(lengths.size())) {
            lengths[codeCount++] = lengthOfNext;
            if (codeCount == 1 << codeBits && codeBits < maximumBits)
                ++codeBits;
        }
        previous = code;
    }
    return size;
}
