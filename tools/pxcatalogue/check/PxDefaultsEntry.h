#pragma once

#include "check/PxSourceElement.h"

#include <values/PxPageType.h>

/** An entry of the default templates, and what the library makes of it. */
class PxDefaultsEntry
{
public:
    explicit PxDefaultsEntry(const PxSourceElement &element);

    const PxSourceElement &element() const { return *m_element; }
    /** All its words can be read, so that it is for the pages that it names. */
    bool isPlain() const { return m_isPlain; }
    /** Each once. */
    QStringList themes() const { return m_themes; }
    /** Each once, without those that are none. */
    QVector<PxPageTypeEnum> pageTypes() const { return m_pageTypes; }
    /** Bits of PxPageAlignment. */
    int alignments() const { return m_alignments; }
    /** Empty when it names none. */
    QString layout() const { return m_layout; }
    QString background() const { return m_background; }

    /** Whether the element has an attribute that only entries have. */
    static bool isEntry(const PxSourceElement &element);

private:
    void readTemplates();

    const PxSourceElement *m_element;
    bool m_isPlain;
    QStringList m_themes;
    QVector<PxPageTypeEnum> m_pageTypes;
    int m_alignments;
    QString m_layout;
    QString m_background;
};
