#pragma once

#include <QByteArray>
#include <QString>

class QImage;

/**
 * The bytes of a picture of unknown origin, measured before a decoder sees them.
 *
 * A few hundred bytes of a picture may stand for gigabytes, or keep a decoder busy for hours. So
 * size and cost are read from the bytes themselves, four formats are known, and the decoder of any
 * other is never asked. What a picture is not made of, such as texts and other data of a camera,
 * does not reach a decoder at all.
 */
class PxPictureData
{
public:
    /** More than any preview or logo has; decoding so many costs up to 0.2 s and 34 MB. */
    static constexpr qint64 maximumPixels = 2048LL * 2048;
    /** Bytes of its pixels: in a PNG of one column eight for a pixel, and one more for each row. */
    static constexpr qint64 maximumUnpackedSize = 9 * maximumPixels;
    /** Of a JPEG, each of which goes over all pixels. Progressive ones have about ten. */
    static constexpr int maximumScans = 32;

    explicit PxPictureData(const QByteArray &file);

    /** Why no decoder may have it, a predicate of the picture: "has …". Empty for a good one. */
    QString fault() const;
    /** Not all is there that its beginning announces, which a decoder may leave blank. */
    bool isCutOff() const { return m_isCutOff; }
    /** Of a picture without fault. */
    qint64 pixels() const { return m_width * m_height; }
    /** The picture, if it has no fault; null if its data are damaged. */
    QImage decoded() const;

private:
    void readPng();
    void readJpeg();
    void readGif();
    void readBmp();

    int byteAt(qint64 position) const;
    qint64 bigEndian(qint64 position, int size) const;
    qint64 littleEndian(qint64 position, int size) const;
    QByteArray gifBlocks(qint64 *position) const;

    QByteArray m_bytes;
    QByteArray m_format; ///< as QImageReader names it; empty for none of the four
    qint64 m_width = 0;
    qint64 m_height = 0;
    qint64 m_unpackedSize = 0; ///< where it does not follow from the others
    int m_scans = 0;
    bool m_isOtherJpeg = false; ///< arithmetically coded, lossless or hierarchical
    bool m_isCutOff = false;
};
