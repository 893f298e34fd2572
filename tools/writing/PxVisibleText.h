#pragma once

#include <QString>

/**
 * Escapes the characters that a terminal might obey or that are invisible: control characters,
 * direction marks, tags and others without a glyph.
 *
 * An unpaired surrogate becomes U+FFFD. Spaces are kept, non-breaking ones too.
 */
class PxVisibleText
{
public:
    /**
     * Returns a single line. Escapes look like \u202E, or \U000E0041 for characters beyond 16 bits.
     * Escaping a line again does not change it.
     */
    static QString line(const QString &text);
    /** The same with the escapes of JSON, for a text without quotes and backslashes. */
    static QString inJson(const QString &text);
    /** The same for JSON from QJsonDocument, with the escapes of JSON; line breaks are kept. */
    static QString json(const QByteArray &json);
    /** The same for XML, with the references of XML. */
    static QString xml(const QString &xml);
};
