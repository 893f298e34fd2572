#pragma once

#include <QByteArray>
#include <QString>

class QImage;

/**
 * The bytes of a picture of unknown origin, examined before a decoder sees them.
 *
 * A few hundred bytes of a picture may unpack to gigabytes or keep a decoder busy for hours. This
 * class therefore reads the size and the decoding cost from the bytes themselves. It knows four
 * formats; other formats are never decoded. Parts that do not belong to the picture itself, such as
 * texts and camera data, do not reach a decoder.
 */
class PxPictureData
{
public:
    /** More pixels than any preview or logo has; an image takes up to 64 MB. */
    static constexpr qint64 maximumPixels = 4096LL * 4096;
    /**
     * The most bytes of unpacked pixels of a PNG or GIF: four per pixel and one per row, and a row
     * may be a single pixel.
     */
    static constexpr qint64 maximumUnpackedSize = 5 * maximumPixels;
    /**
     * The most samples that the scans of a JPEG may process: its scans times the samples in its
     * blocks of 64, because each scan goes over all of them. A progressive JPEG has about ten scans
     * and counts as at least ten, because all of its samples are kept in memory.
     */
    static constexpr qint64 maximumScannedSamples = 24 * maximumPixels;
    /** A scan of fewer samples counts as this many: it takes some time anyway. */
    static constexpr qint64 minimumScannedSamples = 512LL * 256;

    explicit PxPictureData(const QByteArray &file);

    /**
     * Why the picture must not be decoded, as a predicate: "is too large". Empty for a good
     * picture.
     */
    QString fault() const;
    /** Whether the data end too early. A decoder may leave the rest of the picture blank. */
    bool isCutOff() const { return m_isCutOff; }
    /** The number of pixels; only for a picture without a fault. */
    qint64 pixels() const { return m_width * m_height; }
    /** The decoded picture; null if it has a fault or its data are damaged. */
    QImage decoded() const;

private:
    void readPng();
    void readJpeg();
    void readGif();
    void readBmp();

    QByteArray m_bytes;
    QByteArray m_format; ///< as QImageReader names it; empty for none of the four
    qint64 m_width = 0;
    qint64 m_height = 0;
    qint64 m_unpackedSize = 0; ///< in bytes; of a PNG or GIF
    qint64 m_samples = 0;      ///< of a JPEG
    int m_scans = 0;
    bool m_isProgressive = false;
    bool m_isOtherJpeg = false; ///< arithmetically coded, lossless or hierarchical
    bool m_isCutOff = false;
};
