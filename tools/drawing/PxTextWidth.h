#pragma once

#include <QString>
#include <QStringList>

/**
 * Estimated widths of texts, rather too wide than too narrow: a drawing must not depend on the
 * fonts of the machine that makes it, and fits whatever font the reader's machine has.
 */
namespace PxTextWidth {

/** The width in the unit of the font size. */
double of(const QString &text, double fontSize, bool isBold = false);

/**
 * The text in lines of at most this width. What does not fit on `maximumLines` lines is replaced
 * by "…". A number is never broken or shortened, unless it alone is too wide for a line.
 */
QStringList wrapped(const QString &text, double width, double fontSize, bool isBold = false,
                    int maximumLines = 3);

} // namespace PxTextWidth
