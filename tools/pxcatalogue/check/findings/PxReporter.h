#pragma once

#include "check/findings/PxFindings.h"
#include "check/source/PxCheckedFile.h"

#include <type_traits>

/**
 * A finding that has just been added, for setting its texts.
 *
 * A text may contain %1, %2 … and be followed by as many arguments: texts, numbers, or other places
 * in files. A text that takes long to find may be given as a function instead, which is called only
 * if the finding is listed.
 */
class PxAddedFinding
{
public:
    /** `finding` is null if it is silenced or only counted; its texts are dropped then. */
    explicit PxAddedFinding(PxFinding *finding) : m_finding(finding) {}

    /** What is wrong with the file. */
    template <typename Text, typename... Arguments>
    PxAddedFinding &message(const Text &text, const Arguments &...arguments)
    {
        return set(&PxFinding::message, text, arguments...);
    }
    /** What the library does now. */
    template <typename Text, typename... Arguments>
    PxAddedFinding &now(const Text &text, const Arguments &...arguments)
    {
        return set(&PxFinding::now, text, arguments...);
    }
    /** What to do about it. The text may be empty. */
    template <typename Text, typename... Arguments>
    PxAddedFinding &hint(const Text &text, const Arguments &...arguments)
    {
        return set(&PxFinding::hint, text, arguments...);
    }
    /** What to put in place of what is there, before it is escaped. Null if not certain. */
    template <typename Text>
    PxAddedFinding &replacement(const Text &text)
    {
        set(&PxFinding::replacement, text);
        if (m_finding && !m_finding->replacement.isNull())
            m_finding->replacement = m_finding->replacement.toHtmlEscaped();
        return *this;
    }

private:
    using Member = QString PxFinding::*;

    template <typename Text, typename... Arguments>
    PxAddedFinding &set(Member member, const Text &text, const Arguments &...arguments)
    {
        if (!m_finding)
            return *this;
        if constexpr (std::is_invocable_v<Text>)
            setText(member, text(), {});
        else
            setText(member, text, {textOf(arguments, member)...});
        return *this;
    }
    void setText(Member member, const QString &text, const QStringList &arguments);
    static QString textOf(const QString &text, Member) { return text; }
    static QString textOf(qint64 number, Member) { return QString::number(number); }
    QString textOf(const PxPlace &place, Member member);

    PxFinding *m_finding;
};

/** Adds the findings of a file. There is no other way to add one. */
class PxReporter
{
public:
    /** For findings outside the checked files, or in several of them. */
    explicit PxReporter(PxFindings &findings) : m_findings(findings) {}
    /** Both must outlive the reporter. */
    PxReporter(PxFindings &findings, const PxCheckedFile &file)
        : m_findings(findings)
        , m_file(&file)
    {}

    /** The message says what is wrong with the file; for its arguments see PxAddedFinding. */
    template <typename... Arguments>
    PxAddedFinding add(PxTag tag, const PxPlace &place, const QString &message,
                       const Arguments &...arguments) const
    {
        return PxAddedFinding(m_findings.add(tag, place)).message(message, arguments...);
    }
    /** The same, with a place in the file of the reporter. */
    template <typename... Arguments>
    PxAddedFinding add(PxTag tag, const PxSourceRange &range, const QString &message,
                       const Arguments &...arguments) const
    {
        return add(tag, place(range), message, arguments...);
    }
    /** Whether another finding of the tag in this file would be listed rather than counted. */
    bool hasRoom(PxTag tag) const { return m_findings.hasRoom(tag, m_file->path()); }

    const PxCheckedFile &file() const { return *m_file; }
    PxPlace place(const PxSourceRange &range) const { return m_file->place(range); }

private:
    PxFindings &m_findings;
    const PxCheckedFile *m_file = nullptr;
};
