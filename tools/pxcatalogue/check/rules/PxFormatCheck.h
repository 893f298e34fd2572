#pragma once

#include "check/findings/PxFileFindings.h"
#include "format/PxFormat.h"

/**
 * Checks the names of elements and attributes, and each value by itself: what the library does not
 * read, and what it reads otherwise than it is written.
 */
class PxFormatCheck
{
public:
    /** The file has been read. It must outlive the check. */
    PxFormatCheck(const PxCheckedFile &file, PxFileKind kind) : m_file(file), m_kind(kind) {}

    void run(PxFindings *findings) const;

private:
    /** An element, what it may be, what its parent is, and its neighbour before; null for none. */
    struct Place
    {
        const PxSourceElement &element;
        const PxElementRow &row;
        const PxElementRow *parent;
        const PxSourceElement *before;
    };

    bool isOfKind(const PxSourceElement &root) const;
    void checkElement(const Place &place, PxFileFindings &findings) const;
    void checkAttributes(const Place &place, PxFileFindings &findings) const;
    void checkText(const Place &place, PxFileFindings &findings) const;
    void checkChildren(const Place &place, PxFileFindings &findings) const;

    void addUnknownAttribute(const Place &place, const PxSourceAttribute &attribute,
                             PxFileFindings &findings) const;
    void addRepeated(const Place &place, const PxSourceElement &child, const PxSourceElement &first,
                     PxFileFindings &findings) const;
    /** The child with that index, and so below. */
    void addUnknownElement(const Place &place, int index, PxFileFindings &findings) const;
    void addMisplaced(const Place &place, int index, const PxElementRow &owner, const QString &now,
                      PxFileFindings &findings) const;

    const PxCheckedFile &m_file;
    PxFileKind m_kind;
};
