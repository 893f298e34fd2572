#include "output/PxFindingsText.h"

#include "check/findings/PxCheckTags.h"

#include <QMap>
#include <QStringList>

namespace {

constexpr struct
{
    PxSeverity severity;
    const char *colour; // an escape sequence
    const char *one;
    const char *many;
} severities[] = {
    {PxSeverity::Error, "\x1b[1;31m", "error", "errors"},
    {PxSeverity::Warning, "\x1b[1;35m", "warning", "warnings"},
    {PxSeverity::Info, "\x1b[1;36m", "info", "infos"},
    {PxSeverity::Pedantic, "\x1b[1;34m", "pedantic", "pedantic"},
};

QString counted(int count, const char *one, const char *many)
{
    return QString("%1 %2").arg(QString::number(count), count == 1 ? one : many);
}

void addFinding(PxOutputText *text, const PxFinding &finding, bool isColoured)
{
    const char *colour = nullptr;
    for (const auto &row : severities) {
        if (isColoured && row.severity == finding.severity)
            colour = row.colour;
    }
    const QString place = QString("%1:%2:%3: ")
                              .arg(finding.place.path, QString::number(finding.place.line),
                                   QString::number(finding.place.column));
    text->addLine({{place},
                   {PxCheckTags::severityName(finding.severity), colour},
                   {QString(": %1 [%2]").arg(finding.text(), finding.tag->name)}});
    if (!finding.now.isEmpty())
        text->addLine("    now: " + finding.now);
    if (!finding.hint.isEmpty())
        text->addLine("    hint: " + finding.hint);
}

void addSummary(PxOutputText *text, const PxCheckReport &report)
{
    QMap<QString, QStringList> notChecked; // tags, by what the check lacked
    for (auto it = report.tagsNotChecked.begin(); it != report.tagsNotChecked.end(); ++it)
        notChecked[it.value()].append(it.key());
    for (auto it = notChecked.begin(); it != notChecked.end(); ++it)
        text->addLine(QString("not checked %1: %2").arg(it.key(), it->join(", ")));
    QStringList counts;
    for (const auto &row : severities) {
        const int count = report.count(row.severity);
        if (count > 0)
            counts.append(counted(count, row.one, row.many));
    }
    if (counts.isEmpty())
        counts.append("nothing found");
    if (report.knownCount > 0)
        counts.append(QString("%1 known").arg(report.knownCount));
    text->addLine(
        QString("%1 read: %2").arg(counted(report.fileCount, "file", "files"), counts.join(", ")));
}

} // namespace

PxOutputText PxFindingsText::of(const PxCheckReport &report, bool isColoured, bool isQuiet)
{
    PxOutputText text;
    for (const PxFinding &finding : report.findings)
        addFinding(&text, finding, isColoured);
    if (!isQuiet)
        addSummary(&text, report);
    return text;
}
