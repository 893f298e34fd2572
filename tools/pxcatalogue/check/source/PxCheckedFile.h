#pragma once

#include "check/source/PxSourceDocument.h"

#include <PxXMLFault.h>

#include <QDomDocument>
#include <QString>

#include <memory>

/** A file to check: the document as the library reads it, and the place of each part of it. */
class PxCheckedFile
{
public:
    /** Reads the file. Findings show `path` as it is given here. */
    explicit PxCheckedFile(const QString &path);

    QString path() const { return m_path; }
    /** Null if the library cannot read the file. */
    const PxSourceElement *root() const { return isRead() ? m_source->root() : nullptr; }
    /** Whether the library can read the file. */
    bool isRead() const { return m_fault.kind == PxXMLFault::Kind::None; }
    const PxSourceDocument &source() const { return *m_source; }
    /** The document as the library reads it. */
    QDomDocument document() const { return m_document; }
    PxPlace place(const PxSourceRange &range) const;

    /** Why the library cannot read the file. */
    const PxXMLFault &fault() const { return m_fault; }
    /** The place of the fault; if it has none, the start of the file. */
    PxPlace faultPlace() const;
    /** Whether source() has the whole text; in a file with a fault it may end soon after that. */
    bool isSourceWhole() const { return m_isSourceWhole; }

private:
    void readSource();

    QString m_path;
    PxXMLFault m_fault;
    QDomDocument m_document;
    bool m_isSourceWhole = false;
    std::unique_ptr<PxSourceDocument> m_source;
};
