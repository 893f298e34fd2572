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
    /** More than any preview or logo has; an image takes up to 64 MB. */
    static constexpr qint64 maximumPixels = 4096LL * 4096;
    /** Bytes of the pixels of a PNG or GIF: four each, and one more for each row, may it be of one.
     */
    static constexpr qint64 maximumUnpackedSize = 5 * maximumPixels;
    /**
     * Scans of a JPEG times samples, as many as its blocks of 64 hold: each scan goes over all.
     * Progressive ones have about ten, and count as ten at least, since all samples are kept.
     */
    static constexpr qint64 maximumScannedSamples = 24 * maximumPixels;
    /** A scan takes its time even if the picture has less. */
    static constexpr qint64 minimumScannedSamples = 512LL * 256;

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
    qint64 m_samples = 0;      ///< of a JPEG
    int m_scans = 0;
    bool m_isProgressive = false;
    bool m_isOtherJpeg = false; ///< arithmetically coded, lossless or hierarchical
    bool m_isCutOff = false;
};
