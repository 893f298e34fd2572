#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/findings/PxFindings.h"
#include "output/PxFindingsText.h"
#include "writing/PxProblem.h"

#include <QMap>
#include <QStringList>
#include <QVector>

#include <optional>

class PxCommandLine;
struct PxOption;

/** The options of the command "check", decoded. */
class PxCheckOptions
{
public:
    enum class Format { Text, Json, Sarif, Markdown };

    /** All options, in the order of --help. */
    static QVector<PxOption> all();

    explicit PxCheckOptions(const PxCommandLine &line);

    /** What is wrong with the options. */
    std::optional<PxProblem> problem() const { return m_problem; }

    Format format() const { return m_format; }
    PxSeverity failOn() const { return m_failOn; }
    /** For findings as text. */
    PxFindingsText::Style style() const { return m_style; }
    /** Whether findings with one cause are listed one by one. */
    bool mustListAll() const { return m_mustListAll; }
    /** The tag to explain; null for none. */
    const PxCheckTag *explainedTag() const { return m_explainedTag; }
    bool mustListTags() const { return m_mustListTags; }
    /** The file of known findings to read; empty for none. */
    QString baseline() const { return m_baseline; }
    /** The file of known findings to write; empty for none. */
    QString newBaseline() const { return m_newBaseline; }

    /** Which findings are reported, and the severities of their tags. */
    PxFindingSettings settings() const { return m_settings; }

private:
    void readFormat(const QString &name);
    void readColour(const QString &when);
    void readOverrides(const QStringList &values);
    PxSeverity readSeverity(const QString &name);
    const PxCheckTag *readTag(const QString &option, const QString &name);
    QVector<PxTag> readTags(const QString &option, const QStringList &values);
    void setProblem(const QString &problem);

    Format m_format = Format::Text;
    PxSeverity m_failOn = PxSeverity::Error;
    PxFindingsText::Style m_style;
    bool m_mustListAll;
    bool m_mustListTags;
    const PxCheckTag *m_explainedTag = nullptr;
    PxFindingSettings m_settings;
    QString m_baseline;
    QString m_newBaseline;
    std::optional<PxProblem> m_problem;
};
