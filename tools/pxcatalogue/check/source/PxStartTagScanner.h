#pragma once

#include "check/source/PxSourceElement.h"

#include <QStringView>

/**
 * Finds the names and values of a start tag's attributes in the text of the tag.
 *
 * The tag may be damaged: what is found before the damage is answered.
 */
class PxStartTagScanner
{
public:
    /** What comes next where the scan has stopped. */
    enum class Lack { Nothing, EqualSign, Quote, EndOfValue, Blank };

    /**
     * `offset` is where the tag, beginning with "<", stands in the document. More text may follow
     * behind it.
     */
    PxStartTagScanner(QStringView tag, int offset);

    /** Where it has stopped: in a sound tag at its ">" or "/>". */
    int end() const { return m_offset + m_position; }
    Lack lack() const { return m_lack; }
    PxSourceRange nameRange() const { return m_nameRange; }
    /** In their order, without values. */
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
