#pragma once

#include <QString>

/**
 * Texts of unknown origin with all that a terminal might obey, or that nobody would see, written
 * out: control characters, changes of direction, tags and other characters without a picture.
 *
 * Half a surrogate pair becomes U+FFFD. Blanks stay, also those that do not break.
 */
class PxVisibleText
{
public:
    /**
     * One line for people: \u202E stands for a character without a picture, \U000E0041 for one
     * beyond 16 bits. A line that was made so stays as it is.
     */
    static QString line(const QString &text);
    /** JSON as QJsonDocument writes it, with the same characters as JSON escapes them. */
    static QString json(const QByteArray &json);
};
