#pragma once

#include <QtGlobal>

class QByteArray;

/**
 * How many bytes packed data stand for, counted without unpacking them: a few hundred thousand
 * bytes may stand for gigabytes, and a decoder goes through all of them however small its picture.
 *
 * Counting ends once it is beyond `limit`, and at data that are damaged or cut off. There the
 * answer may be larger than what a decoder gets out of them, but never smaller.
 */
namespace PxUnpackedSize {

/** Of the image data of a PNG: a zlib stream. */
qint64 ofDeflated(const QByteArray &data, qint64 limit);

/** Of the image data of a GIF, whose codes of colours have `colorBits` bits. */
qint64 ofLzw(const QByteArray &data, int colorBits, qint64 limit);

} // namespace PxUnpackedSize
