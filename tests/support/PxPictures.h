#pragma once

#include <QByteArray>

class QSize;

/** Pictures that no honest program writes. */
namespace PxPictures {

/** A chunk of a PNG. */
QByteArray chunk(const QByteArray &type, const QByteArray &data);
/** A PNG of 8 bits grey, with chunks before its pixels, which are those of its size by default. */
QByteArray png(const QSize &size, const QByteArray &chunks = {}, const QByteArray &pixels = {});
/** The interlaced PNG of 16 bits for each of four colours, which takes longest. */
QByteArray slowPng(const QSize &size);
/** Pixels of which 13 of these bytes unpack to 2064, behind a byte for each literal. */
QByteArray endlessPixels(int size, int literals = 1);

/** A progressive JPEG that is blank. */
QByteArray jpeg(const QSize &size);
/** The same, with its last scan, which is the slowest, as often again. */
QByteArray jpegWithScans(const QSize &size, int scans);
/** A segment of a JPEG. */
QByteArray jpegSegment(char marker, const QByteArray &data);
/** A JPEG without data, whose frame has components with these sampling factors. */
QByteArray emptyJpeg(char marker, const QSize &size, const QByteArray &samplings, int scans);
/** Puts segments behind the start of a JPEG. */
QByteArray withSegments(const QByteArray &jpeg, const QByteArray &segments);

/**
 * The codes of a GIF for these colours, as encoders write them; a clear code whenever the table
 * has so many codes of its own.
 */
QByteArray lzwCodes(const QByteArray &colors, int colorBits, int clearAfter);
/** A GIF with a screen and a frame; its codes stand for so many colours. */
QByteArray gif(const QSize &screen, const QSize &frame, qint64 colors);

/** A BMP with this header and compression, and any pixels. */
QByteArray bmp(const QSize &size, int bits, int compression, const QByteArray &pixels);

/** An ICO with a picture that is said to be small. */
QByteArray ico(const QByteArray &picture);

} // namespace PxPictures
