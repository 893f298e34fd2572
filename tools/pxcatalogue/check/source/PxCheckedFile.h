#pragma once

#include "check/source/PxSourceDocument.h"

#include <PxXMLFault.h>

#include <QDomDocument>
#include <QString>

#include <memory>

/** A file under check: what the library reads of it, and where each thing stands. */
class PxCheckedFile
{
public:
    /** Reads the file. `path` is how it is shown, and leads to it. */
    explicit PxCheckedFile(const QString &path);

    QString path() const { return m_path; }
    /** Null if the library cannot read the file, or there is no document element. */
    const PxSourceElement *root() const { return isRead() ? m_source->root() : nullptr; }
    /** Whether the library can read it. */
    bool isRead() const { return m_fault.kind == PxXMLFault::Kind::None; }
    const PxSourceDocument &source() const { return *m_source; }
    /** The document as the library reads it. */
    QDomDocument document() const { return m_document; }
    PxPlace place(const PxSourceRange &range) const;

    /** Why the library cannot read the file. */
    const PxXMLFault &fault() const { return m_fault; }
    /** Where, or the start of the file. */
    PxPlace faultPlace() const;
    /** The source is the whole text: of a file with a fault, it may end soon after the fault. */
    bool isSourceWhole() const { return m_isSourceWhole; }

private:
    void readSource();

    QString m_path;
    PxXMLFault m_fault;
    QDomDocument m_document;
    bool m_isSourceWhole = false;
    std::unique_ptr<PxSourceDocument> m_source;
};
