#pragma once

#include "check/source/PxSourceElement.h"

#include <QStringView>

/**
 * Finds the names and values of a start tag's attributes in the text of the tag.
 *
 * The tag may be damaged; everything before the damage is found.
 */
class PxStartTagScanner
{
public:
    /** What is missing where the scan stopped. */
    enum class Lack { Nothing, EqualSign, Quote, EndOfValue, Blank };

    /**
     * `tag` begins with "<" and may continue after the end of the tag. `offset` is its index in the
     * document.
     */
    PxStartTagScanner(QStringView tag, int offset);

    /** Where the scan stopped; in an undamaged tag, that is at its ">" or "/>". */
    int end() const { return m_offset + m_position; }
    Lack lack() const { return m_lack; }
    PxSourceRange nameRange() const { return m_nameRange; }
    /** The attributes in the order of the tag, without values. */
    const QVector<PxSourceAttribute> &attributes() const { return m_attributes; }

private:
    void skipBlanks();
    PxSourceRange readName();
    bool readAttribute();
    bool lacks(Lack lack);

    QStringView m_tag;
    int m_offset;
    int m_position = 1;
    Lack m_lack = Lack::Nothing;
    PxSourceRange m_nameRange;
    QVector<PxSourceAttribute> m_attributes;
};
