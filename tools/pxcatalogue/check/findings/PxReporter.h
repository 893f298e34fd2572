#pragma once

#include "check/findings/PxFindings.h"
#include "check/source/PxCheckedFile.h"

#include <type_traits>

/**
 * A finding that has just been added: takes what more there is to say about it.
 *
 * A text may have places %1, %2 …, and as many arguments: texts, numbers, or other places in files.
 * Instead of a text there may be a function that finds it, if that takes long: it is called only
 * for a finding that is listed.
 */
class PxAddedFinding
{
public:
    /** Null for a finding that is silenced or only counted: its texts are dropped. */
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
    /** What to do about it; nothing if the text is empty. */
    template <typename Text, typename... Arguments>
    PxAddedFinding &hint(const Text &text, const Arguments &...arguments)
    {
        return set(&PxFinding::hint, text, arguments...);
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

/** The one way to add a finding: a file, and where its findings go. */
class PxReporter
{
public:
    /** For findings in no file under check, or in several. */
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
    /** In the file of the reporter, as all below. */
    template <typename... Arguments>
    PxAddedFinding add(PxTag tag, const PxSourceRange &range, const QString &message,
                       const Arguments &...arguments) const
    {
        return add(tag, place(range), message, arguments...);
    }
    /** Whether one more finding of the tag would be listed, and not only counted. */
    bool hasRoom(PxTag tag) const { return m_findings.hasRoom(tag, m_file->path()); }

    const PxCheckedFile &file() const { return *m_file; }
    PxPlace place(const PxSourceRange &range) const { return m_file->place(range); }

private:
    PxFindings &m_findings;
    const PxCheckedFile *m_file = nullptr;
};
