#pragma once

#include "check/findings/PxReporter.h"
#include "format/PxFormat.h"

/**
 * Checks the names of elements and attributes, and each value by itself: what the library does not
 * read, and what it reads otherwise than it is written.
 */
class PxFormatCheck
{
public:
    /** The document element is one of such a file. It must outlive the check. */
    PxFormatCheck(const PxSourceElement &root, PxFileKind kind, const PxReporter &report)
        : m_root(root)
        , m_kind(kind)
        , m_report(report)
    {}

    void run();
    /** Whether the library reads anything from a file with such a document element. */
    static bool isOfKind(const PxSourceElement &root, PxFileKind kind);

private:
    /** An element with its row, the row of its parent and the element before it; null if none. */
    struct Place
    {
        const PxSourceElement &element;
        const PxElementRow &row;
        const PxElementRow *parent;
        const PxSourceElement *before;
    };

    void checkElement(const Place &place) const;
    void checkAttributes(const Place &place) const;
    void checkText(const Place &place) const;
    static QString asAttributes(const QString &text, const PxElementRow &row);
    void checkChildren(const Place &place) const;

    void addUnknownAttribute(const Place &place, const PxSourceAttribute &attribute) const;
    void addRepeated(const Place &place, const PxSourceElement &child,
                     const PxSourceElement &first) const;
    /** The child with that index, as in the next function. */
    void addUnknownElement(const Place &place, int index) const;
    void addMisplaced(const Place &place, int index, const PxElementRow &owner,
                      const QString &now) const;

    QString meantBy(const PxSourceAttribute &unknown, const Place &place) const;
    QString hintFor(const PxSourceAttribute &unknown, const Place &place) const;
    // Where an author may have meant to put a name that stands at a wrong place.
    const PxElementRow *parentOf(const QString &element, const Place &from) const;
    QStringList ownersOf(const QString &attribute, const Place &from) const;
    QStringList elementNames() const;

    const PxSourceElement &m_root;
    PxFileKind m_kind;
    const PxReporter m_report;
};
