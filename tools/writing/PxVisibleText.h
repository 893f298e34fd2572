#pragma once

#include <QString>

/**
 * Writes out what a terminal might obey or nobody would see: control characters, changes of
 * direction, tags and other characters without a glyph.
 *
 * Half a surrogate pair becomes U+FFFD. Blanks stay, also non-breaking ones.
 */
class PxVisibleText
{
public:
    /**
     * As one line, with \u202E for a character without a glyph and \U000E0041 for one beyond 16
     * bits. Does not change a line that it returned before.
     */
    static QString line(const QString &text);
    /** The same for JSON that QJsonDocument wrote, with the escapes of JSON. */
    static QString json(const QByteArray &json);
};
