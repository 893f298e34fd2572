#include <PxPictures.h>
#include <themes/PxUnpackedSize.h>

#include <QTest>

#include <functional>
#include <random>

/** Sizes are compared with what was packed, which the code under test never sees. */
class PxUnpackedSizeTest : public QObject
{
    Q_OBJECT

private slots:
    void countsDeflated();
    void countsLzw();
    void countsWhatDecodersUnpack();
};

namespace {

std::mt19937 ourRandom(1); // the same numbers in every run

int below(int end)
{
    return int(ourRandom() % unsigned(end));
}

QByteArray randomBytes(int size, int values = 256)
{
    QByteArray bytes(size, '\0');
    for (char &c : bytes)
        c = char(below(values));
    return bytes;
}

/** Repetitions of every length and distance, between bytes of which some are much rarer. */
QByteArray repetitions(int size)
{
    QByteArray bytes = randomBytes(600);
    while (bytes.size() < size) {
        const int distance = 1 + below(qMin(1 << below(16), bytes.size()));
        const int length = 3 + below(qMin(256, 1 << below(9)));
        for (int i = 0; i < length; ++i)
            bytes.append(bytes.at(bytes.size() - distance));
        for (int i = below(5); i > 0; --i)
            bytes.append(char(255 >> below(9) & below(256)));
    }
    return bytes;
}

/** Exactly, unless it exceeds the limit. */
bool isCounted(int size, const std::function<qint64(qint64)> &count)
{
    for (const int limit : {size / 3, size - 1, size, 65535, 1 << 24}) {
        const qint64 counted = count(limit);
        if (limit >= size ? counted != size : counted <= limit || counted > limit + 65535)
            return false;
    }
    return true;
}

} // namespace

void PxUnpackedSizeTest::countsDeflated()
{
    QList<QByteArray> texts{randomBytes(70000), randomBytes(60000, 20), repetitions(100000)};
    for (int i = 0; i < 256; ++i) {
        texts << QByteArray(1, char(i)) << QByteArray(i + 4, 'x') << repetitions(600 + i);
        texts << "abcdefgh" + QByteArray(i * i / 16, 'x') + "abcdefgh";
    }
    for (const QByteArray &text : qAsConst(texts)) {
        for (const int level : {0, 1, 6, 9}) {
            const QByteArray packed = qCompress(text, level).mid(4).chopped(below(5));
            QVERIFY(isCounted(text.size(), [&packed](qint64 limit) {
                return PxUnpackedSize::ofDeflated(packed, limit);
            }));
        }
    }
}

void PxUnpackedSizeTest::countsLzw()
{
    for (int bits = 2; bits <= 11; ++bits) {
        const int colors = qMin(256, 1 << bits);
        for (const QByteArray &text :
             {QByteArray(20000, '\1'), randomBytes(20000, colors), randomBytes(9, colors)}) {
            for (const int clearAfter : {100, 2000, 5000}) {
                const QByteArray packed = PxPictures::lzwCodes(text, bits, clearAfter);
                QVERIFY(isCounted(text.size(), [&](qint64 limit) {
                    return PxUnpackedSize::ofLzw(packed, bits, limit);
                }));
            }
        }
    }
}

void PxUnpackedSizeTest::countsWhatDecodersUnpack()
{
    const auto deflated = [](const char *hex) {
        return int(PxUnpackedSize::ofDeflated(QByteArray::fromHex(hex), 999));
    };
    QCOMPARE(deflated(""), 0);
    QCOMPARE(deflated("7801 00 0000FFFF 01 0100FEFF 41 42"), 1); // an empty block, and a byte
    QCOMPARE(deflated("7801 01 0500FAFF 4142"), 2);              // cut off
    QCOMPARE(deflated("7801 06 0100FEFF 41"), 0);                // a block of no kind
    QCOMPARE(deflated("7801 73043E2767175737770F00"), 4);        // up to a distance of no kind

    const auto lzw = [](int colorBits, const char *hex) {
        return int(PxUnpackedSize::ofLzw(QByteArray::fromHex(hex), colorBits, 999));
    };
    QCOMPARE(lzw(-1, "00"), 0);
    QCOMPARE(lzw(0, "0000"), 16);
    QCOMPARE(lzw(12, "000000"), 0);
    QCOMPARE(lzw(7, "01 82 83 81 01"), 6);           // without a clear code, and behind the end
    QCOMPARE(lzw(7, "80 01 82 83 84 80 84 FF"), 16); // codes from before a clear code
}

QTEST_APPLESS_MAIN(PxUnpackedSizeTest)
#include "PxUnpackedSizeTest.moc"
