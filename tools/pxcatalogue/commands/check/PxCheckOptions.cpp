#include "commands/check/PxCheckOptions.h"

#include "check/findings/PxCheckTags.h"
#include "check/words/PxSpelling.h"
#include "commands/PxCommandLine.h"

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
    {"json", Format::Json, true, false},
    {"sarif", Format::Sarif, true, false},
    {"markdown", Format::Markdown, false, true},
};

/** Each value may hold several, with commas. */
QStringList partsOf(const QStringList &values)
{
    QStringList parts;
    for (const QString &value : values) {
        for (const QString &part : value.split(QLatin1Char(',')))
            parts.append(part.trimmed());
    }
    return parts;
}

} // namespace

PxCheckOptions::PxCheckOptions(const PxCommandLine &commandLine)
    : m_isQuiet(commandLine.isSet("quiet"))
    , m_isPedantic(commandLine.isSet("pedantic"))
    , m_mustListTags(commandLine.isSet("list-tags"))
    , m_baseline(commandLine.value("baseline"))
    , m_newBaseline(commandLine.value("write-baseline"))
{
    if (commandLine.isSet("explain"))
        m_explainedTag = readTag("explain", commandLine.value("explain"));
    if (commandLine.isSet("format"))
        readFormat(commandLine.value("format"));
    if (commandLine.isSet("fail-on"))
        m_failOn = readSeverity("fail-on", commandLine.value("fail-on"));
    readOverrides(partsOf(commandLine.values("override")));
    m_only = readTags("only", commandLine.values("only"));
    m_skipped = readTags("skip", commandLine.values("skip"));
    if (!m_baseline.isEmpty() && !m_newBaseline.isEmpty())
        setError(QStringLiteral("--baseline and --write-baseline do not go together"));
}

void PxCheckOptions::applyTo(PxFindings *findings) const
{
    for (auto it = m_overrides.begin(); it != m_overrides.end(); ++it)
        findings->setSeverity(it.key(), *it);
    findings->setOnly(m_only);
    findings->setSkipped(m_skipped);
    findings->setPedantic(m_isPedantic);
}

void PxCheckOptions::readFormat(const QString &name)
{
    const bool isOfTags = m_mustListTags || m_explainedTag;
    QStringList names;
    for (const auto &row : formats) {
        if (isOfTags ? !row.isOfTags : !row.isOfFindings)
            continue;
        names.append(QLatin1String(row.name));
        if (name == QLatin1String(row.name)) {
            m_format = row.format;
            return;
        }
    }
    setError(QStringLiteral("--format needs %1%2, not \"%3\"")
                 .arg(names.join(QLatin1String(" or ")),
                      QLatin1String(isOfTags ? " for explanations" : ""), name));
}

void PxCheckOptions::readOverrides(const QStringList &values)
{
    for (const QString &value : values) {
        const PxCheckTag *tag = readTag("override", value.section(QLatin1Char('='), 0, 0));
        if (!value.contains(QLatin1Char('=')))
            setError(QStringLiteral("--override needs TAG=SEVERITY, not \"%1\"").arg(value));
        else if (tag)
            m_overrides[QLatin1String(tag->name)] =
                readSeverity("override", value.section(QLatin1Char('='), 1));
    }
}

PxSeverity PxCheckOptions::readSeverity(const char *option, const QString &name)
{
    QStringList names;
    for (const PxSeverity severity : PxCheckTags::severities()) {
        names.append(QLatin1String(PxCheckTags::severityName(severity)));
        if (name == names.constLast())
            return severity;
    }
    setError(QStringLiteral("--%1 does not know the severity \"%2\": use %3")
                 .arg(QLatin1String(option), name, names.join(QLatin1String(", "))));
    return PxSeverity::Error;
}

const PxCheckTag *PxCheckOptions::readTag(const char *option, const QString &name)
{
    const PxCheckTag *tag = PxCheckTags::find(name);
    if (!tag) {
        const QString hint = PxSpelling::hint(name, PxCheckTags::names());
        setError(QStringLiteral("--%1 does not know the tag \"%2\": %3")
                     .arg(QLatin1String(option), name,
                          hint.isEmpty() ? QStringLiteral("--list-tags shows all") : hint));
    }
    return tag;
}

QStringList PxCheckOptions::readTags(const char *option, const QStringList &values)
{
    QStringList tags;
    for (const QString &name : partsOf(values)) {
        if (readTag(option, name))
            tags.append(name);
    }
    return tags;
}

void PxCheckOptions::setError(const QString &error)
{
    if (m_error.isEmpty())
        m_error = error;
}
