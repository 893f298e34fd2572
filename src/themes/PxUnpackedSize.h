#pragma once

#include <QtGlobal>

class QByteArray;

/**
 * The size of packed data after unpacking, computed without unpacking them: a few hundred thousand
 * bytes may unpack to gigabytes, and a decoder processes all of them even if the picture is small.
 *
 * Counting stops when the size exceeds `limit`, and where the data are damaged or cut off. The
 * result for such data may be larger than what a decoder makes of them, but never smaller.
 */
namespace PxUnpackedSize {

/** For the image data of a PNG: a zlib stream. */
qint64 ofDeflated(const QByteArray &data, qint64 limit);

/** For the image data of a GIF, whose colour codes have `colorBits` bits. */
qint64 ofLzw(const QByteArray &data, int colorBits, qint64 limit);

} // namespace PxUnpackedSize
