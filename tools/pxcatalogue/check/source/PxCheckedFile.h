#pragma once

#include "check/findings/PxFindings.h"
#include "check/source/PxSourceDocument.h"

#include <PxXMLFault.h>

#include <memory>

/** A file under check: what the library reads of it, and where each thing stands. */
class PxCheckedFile
{
public:
    /** Reads the file. `path` is how it is shown, and leads to it. */
    explicit PxCheckedFile(const QString &path);

    QString path() const { return m_path; }
    /** Null when the library cannot read the file, or there is no document element. */
    const PxSourceElement *root() const { return isRead() ? m_source->root() : nullptr; }
    /** Whether the library can read it. */
    bool isRead() const { return m_fault.kind == PxXMLFault::Kind::None; }
    const PxSourceDocument &source() const { return *m_source; }
    /** The document as the library reads it. */
    QDomDocument document() const { return m_document; }

    PxPlace place(const PxSourceRange &range) const;
    void add(PxFindings *findings, const char *tag, const PxSourceRange &range,
             const QString &message, const QString &now = QString(),
             const QString &hint = QString()) const;

    /** Whether the texts of one more finding are looked at. */
    bool isTold(PxFindings *findings, const char *tag, const PxSourceRange &range) const
    {
        return findings->isTold(tag, place(range));
    }

    /** Why the library cannot read the file, and what a stricter reader objects to. */
    void checkReading(PxFindings *findings) const;
    /** What comments in the file silence. `isChecked` is false where few checks understand it. */
    void findAllowances(PxFindings *findings, bool isChecked) const;

private:
    void readSource();
    /** Whether the fault stands somewhere in the text. */
    bool hasFaultPlace() const { return m_fault.line > 0; }
    /** Where the fault stands, or the start of the file. */
    PxPlace faultPlace() const;
    void addFault(PxFindings *findings, const QString &now) const;
    QVector<PxSourceNode> findAllowances(const QVector<PxSourceNode> &nodes,
                                         const QVector<const PxSourceElement *> &elements,
                                         PxFindings *findings, bool isChecked) const;
    void checkNoAllowance(const PxSourceNode &node, PxFindings *findings) const;

    QString m_path;
    PxXMLFault m_fault; ///< of the library
    QDomDocument m_document;
    bool m_isWhole = false; ///< the source is the whole text
    std::unique_ptr<PxSourceDocument> m_source;
};
