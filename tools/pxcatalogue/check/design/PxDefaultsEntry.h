#pragma once

#include "check/rules/PxElementReading.h"

#include <values/PxPageType.h>

/** An entry of the default templates, and what the library makes of it. */
class PxDefaultsEntry
{
public:
    /** Empty where none is named. */
    struct Templates
    {
        QString layout;
        QString background;
    };

    explicit PxDefaultsEntry(const PxSourceElement &element);

    const PxSourceElement &element() const { return *m_element; }
    /** Whether all its words can be read. If not, nobody knows which pages are meant. */
    bool isPlain() const { return m_isPlain; }
    /** Each once; of a very long list the first. */
    QStringList themes() const { return m_themes; }
    /** Each once, without unknown ones. */
    QVector<PxPageTypeEnum> pageTypes() const { return m_pageTypes; }
    /** Bits of PxPageAlignment. */
    int alignments() const { return m_alignments; }
    /** Asks the library each time: only few entries need it. */
    Templates templates() const;

    /** Whether the element has an attribute that only entries have. */
    static bool isEntry(const PxSourceElement &element);

private:
    const PxSourceElement *m_element;
    bool m_isPlain;
    QStringList m_themes;
    QVector<PxPageTypeEnum> m_pageTypes;
    int m_alignments;
};
