#include "commands/check/PxCheckOptions.h"

#include "check/findings/PxCheckTags.h"
#include "check/words/PxSpelling.h"
#include "commands/PxCommandLine.h"
#include "commands/PxOption.h"
#include "writing/PxTerminal.h"

namespace {

using Format = PxCheckOptions::Format;

constexpr struct
{
    const char *name;
    Format format;
    bool isOfFindings;
    bool isOfTags;
} formats[] = {
    {"text", Format::Text, true, true},
    {"json", Format::Json, true, true},
    {"sarif", Format::Sarif, true, false},
    {"markdown", Format::Markdown, false, true},
};

QStringList formatNames()
{
    QStringList names;
    for (const auto &row : formats)
        names.append(row.name);
    return names;
}

QStringList severityNames()
{
    QStringList names;
    for (const PxSeverity severity : PxCheckTags::severities())
        names.append(PxCheckTags::severityName(severity));
    return names;
}

/** Splits the values at their commas. */
QStringList partsOf(const QStringList &values)
{
    QStringList parts;
    for (const QString &value : values) {
        for (const QString &part : value.split(','))
            parts.append(part.trimmed());
    }
    return parts;
}

} // namespace

QVector<PxOption> PxCheckOptions::all()
{
    // clang-format off
    return {
        {"format", "FORMAT", "text, json or sarif (2.1.0). Default: text.", 0, 0, formatNames(), PxOption::Form::OneKeyword},
        {"json", "", "The same as --format json."},
        {"no-source", "", "Text without the lines of the files."},
        {"color", "WHEN", "Text in colours: auto, which is on a terminal unless NO_COLOR is set, always or never. Default: auto.", 0, 0, {"auto", "always", "never"}, PxOption::Form::OneKeyword},
        {"all", "", "List each place where a missing image is named. Default: the first one, and how many others there are."},
        {"quiet", "", "Text without a summary: prints nothing at all if there are no findings."},
        {"pedantic", "", "Report matters of style, too."},
        {"fail-on", "SEVERITY", "How bad a finding must be for exit status 1: error, warning, info or pedantic, which implies --pedantic. Default: error.", 0, 0, severityNames(), PxOption::Form::OneKeyword},
        {"override", "TAG=SEVERITY", "Another severity for this tag; several with commas.", 0, 0, PxCheckTags::names(), PxOption::Form::OpenKeywords},
        {"only", "TAGS", "Only findings with these tags, pedantic ones, too; several with commas.", 0, 0, PxCheckTags::names(), PxOption::Form::OpenKeywords},
        {"skip", "TAGS", "No findings with these tags; several with commas.", 0, 0, PxCheckTags::names(), PxOption::Form::OpenKeywords},
        {"baseline", "FILE", "Hide the findings that are listed in this file.", 0, 0, {}, PxOption::Form::File},
        {"write-baseline", "FILE", "List all findings in this file instead of printing them.", 0, 0, {}, PxOption::Form::File},
        {"explain", "TAG", "What a tag means, with an example. Nothing is checked.", 0, 0, PxCheckTags::names(), PxOption::Form::OpenKeywords},
        {"list-tags", "", "A table of all tags; with --format markdown or json, their explanations, too. Nothing is checked."},
    };
    // clang-format on
}

PxCheckOptions::PxCheckOptions(const PxCommandLine &line)
    : m_mustListAll(line.isSet("all"))
    , m_mustListTags(line.isSet("list-tags"))
    , m_baseline(line.value("baseline"))
    , m_newBaseline(line.value("write-baseline"))
{
    m_style.isQuiet = line.isSet("quiet");
    m_style.hasSource = !line.isSet("no-source");
    m_style.width = PxTerminal::columns();
    readColour(line.keywords("color").value(0, "auto"));
    if (line.isSet("explain"))
        m_explainedTag = readTag("explain", line.value("explain"));
    if (line.isSet("json"))
        readFormat("json");
    if (line.isSet("format"))
        readFormat(line.keywords("format").constFirst());
    if (line.isSet("format") && line.isSet("json") && m_format != Format::Json)
        setProblem("--json and another --format do not go together");
    if (line.isSet("fail-on"))
        m_failOn = readSeverity(line.keywords("fail-on").constFirst());
    // A finding that is not looked for cannot fail.
    m_settings.isPedantic = line.isSet("pedantic") || m_failOn == PxSeverity::Pedantic;
    readOverrides(partsOf(line.values("override")));
    m_settings.only = readTags("only", line.values("only"));
    m_settings.skipped = readTags("skip", line.values("skip"));
    if (!m_baseline.isEmpty() && !m_newBaseline.isEmpty())
        setProblem("--baseline and --write-baseline do not go together");
}

void PxCheckOptions::readFormat(const QString &name)
{
    const bool isOfTags = m_mustListTags || m_explainedTag;
    QStringList names;
    for (const auto &row : formats) {
        if (isOfTags ? !row.isOfTags : !row.isOfFindings)
            continue;
        names.append(row.name);
        if (name == row.name) {
            m_format = row.format;
            return;
        }
    }
    setProblem(QString("--format needs %1%2, not \"%3\"")
                   .arg(names.join(" or "), isOfTags ? " for explanations" : "", name));
}

void PxCheckOptions::readColour(const QString &when)
{
    m_style.isColoured = when == "always" || (when == "auto" && PxTerminal::hasColours());
}

void PxCheckOptions::readOverrides(const QStringList &values)
{
    for (const QString &value : values) {
        const PxCheckTag *tag = readTag("override", value.section('=', 0, 0));
        if (!value.contains('='))
            setProblem(QString("--override needs TAG=SEVERITY, not \"%1\"").arg(value));
        else if (tag)
            m_settings.severities[tag->tag] = readSeverity(value.section('=', 1));
    }
}

PxSeverity PxCheckOptions::readSeverity(const QString &name)
{
    for (const PxSeverity severity : PxCheckTags::severities()) {
        if (name == PxCheckTags::severityName(severity))
            return severity;
    }
    setProblem(QString("--override does not know the severity \"%1\": use %2")
                   .arg(name, severityNames().join(", ")));
    return PxSeverity::Error;
}

const PxCheckTag *PxCheckOptions::readTag(const QString &option, const QString &name)
{
    const PxCheckTag *tag = PxCheckTags::find(name);
    if (!tag) {
        const QString hint = PxSpelling::hint(name, PxCheckTags::names());
        setProblem(QString("--%1 does not know the tag \"%2\": %3")
                       .arg(option, name, hint.isEmpty() ? "--list-tags shows all" : hint));
    }
    return tag;
}

QVector<PxTag> PxCheckOptions::readTags(const QString &option, const QStringList &values)
{
    QVector<PxTag> tags;
    for (const QString &name : partsOf(values)) {
        if (const PxCheckTag *tag = readTag(option, name))
            tags.append(tag->tag);
    }
    return tags;
}

void PxCheckOptions::setProblem(const QString &problem)
{
    if (!m_problem)
        m_problem = PxProblem{problem};
}
