#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/findings/PxFindings.h"

#include <QMap>
#include <QStringList>

class PxCommandLine;

/** The options of the command "check", understood. */
class PxCheckOptions
{
public:
    enum class Format { Text, Json, Sarif, Markdown };

    explicit PxCheckOptions(const PxCommandLine &commandLine);

    /** What is wrong with them, in one line that says what to do; empty for nothing. */
    QString error() const { return m_error; }

    Format format() const { return m_format; }
    PxSeverity failOn() const { return m_failOn; }
    bool isQuiet() const { return m_isQuiet; }
    /** The tag to explain; null for none. */
    const PxCheckTag *explainedTag() const { return m_explainedTag; }
    bool mustListTags() const { return m_mustListTags; }
    /** Files; empty for none. */
    QString baseline() const { return m_baseline; }
    QString newBaseline() const { return m_newBaseline; }

    /** Tells which findings are wanted, and how bad they are. */
    void applyTo(PxFindings *findings) const;

private:
    void readFormat(const QString &name);
    void readOverrides(const QStringList &values);
    PxSeverity readSeverity(const char *option, const QString &name);
    const PxCheckTag *readTag(const char *option, const QString &name);
    QStringList readTags(const char *option, const QStringList &values);
    void setError(const QString &error);

    Format m_format = Format::Text;
    PxSeverity m_failOn = PxSeverity::Error;
    bool m_isQuiet;
    bool m_isPedantic;
    bool m_mustListTags;
    const PxCheckTag *m_explainedTag = nullptr;
    QMap<QString, PxSeverity> m_overrides;
    QStringList m_only;
    QStringList m_skipped;
    QString m_baseline;
    QString m_newBaseline;
    QString m_error;
};
