#pragma once

#include "check/findings/PxFindings.h"
#include "check/source/PxCheckedFile.h"

#include <type_traits>

/** A finding that has just been added: takes what more there is to say about it. */
class PxAddedFinding
{
public:
    /** Null for a finding that is only counted, or silenced: its texts are dropped. */
    explicit PxAddedFinding(PxFinding *finding) : m_finding(finding) {}

    /** What the library does now. */
    PxAddedFinding &now(const QString &text);
    /** What to do about it; nothing if the text is empty. */
    PxAddedFinding &hint(const QString &text);
    /** The place that PxFinding::otherPlaceMark stands for in the message. */
    PxAddedFinding &otherPlace(const PxPlace &place);

    /** The same for a text that takes long to find: `find()` is called only if it is needed. */
    template <typename Find, typename = std::enable_if_t<std::is_invocable_v<Find>>>
    PxAddedFinding &now(Find find)
    {
        return m_finding ? now(find()) : *this;
    }
    template <typename Find, typename = std::enable_if_t<std::is_invocable_v<Find>>>
    PxAddedFinding &hint(Find find)
    {
        return m_finding ? hint(find()) : *this;
    }

private:
    PxFinding *m_finding;
};

/** The one way to add a finding: a file, and where its findings go. */
class PxReporter
{
public:
    /** Findings in no file under check, or in several. */
    explicit PxReporter(PxFindings &findings) : m_findings(findings) {}
    /** Both must outlive the reporter. */
    PxReporter(PxFindings &findings, const PxCheckedFile &file)
        : m_findings(findings)
        , m_file(&file)
    {}

    /** The message says what is wrong with the file. The reporter has a file. */
    PxAddedFinding add(PxTag tag, const PxSourceRange &range, const QString &message) const;
    PxAddedFinding add(PxTag tag, const PxPlace &place, const QString &message) const;

    /** Whether one more finding of the tag would be listed, and not only counted. */
    bool hasRoom(PxTag tag) const { return m_findings.hasRoom(tag, m_file->path()); }

    const PxCheckedFile &file() const { return *m_file; }
    /** As in "line 5", of the file. */
    QString line(const PxSourceRange &range) const;

private:
    PxFindings &m_findings;
    const PxCheckedFile *m_file = nullptr;
};
