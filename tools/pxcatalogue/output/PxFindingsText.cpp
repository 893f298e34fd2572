#include "output/PxFindingsText.h"

#include "check/findings/PxCheckTags.h"
#include "check/source/PxSourceLines.h"
#include "output/PxSourceFrame.h"

#include <QDir>
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

const char *colourOf(PxSeverity severity)
{
    for (const auto &row : severities) {
        if (row.severity == severity)
            return row.colour;
    }
    return nullptr;
}

QString shown(const PxPlace &place)
{
    return QString("%1:%2:%3: ")
        .arg(place.path, QString::number(place.line), QString::number(place.column));
}

/** Whether a line of the file shows what is wrong: not of a whole file, or of several places. */
bool hasSource(const PxFinding &finding)
{
    const PxPlace &place = finding.place;
    const bool isOfWholeFile =
        place.line == 1 && place.column == 1 && place.endLine == 1 && place.endColumn == 1;
    return finding.restCount == 0 && !isOfWholeFile;
}

/** Prints findings; reads the lines in their files first. */
class Printer
{
public:
    Printer(const PxCheckReport &report, const PxFindingsText::Style &style, PxOutputText *text)
        : m_style(style)
        , m_lines(style.hasSource ? placesOf(report) : QVector<PxPlace>())
        , m_text(*text)
    {}

    void add(const PxFinding &finding)
    {
        const char *colour = m_style.isColoured ? colourOf(finding.severity) : nullptr;
        m_text.addLine({{shown(finding.place)},
                        {PxCheckTags::severityName(finding.severity), colour},
                        {QString(": %1 [%2]").arg(finding.text(), finding.tag->name)}});
        if (hasSource(finding))
            addLine(finding.place, colour);
        if (finding.otherPlaces > 0)
            m_text.addLine(QString("    and %1 (--all lists them)")
                               .arg(counted(finding.otherPlaces, "other place", "other places")));
        if (!finding.related.path.isEmpty()) {
            m_text.addLine(shown(finding.related) + "also here");
            addLine(finding.related, colour);
        }
        if (!finding.now.isEmpty())
            m_text.addLine("    now: " + finding.now);
        if (!finding.hint.isEmpty())
            m_text.addLine("    hint: " + finding.hint);
    }

private:
    static QVector<PxPlace> placesOf(const PxCheckReport &report)
    {
        QVector<PxPlace> places;
        for (const PxFinding &finding : report.findings) {
            if (hasSource(finding))
                places.append(finding.place);
            if (!finding.related.path.isEmpty())
                places.append(finding.related);
        }
        return places;
    }

    void addLine(const PxPlace &place, const char *colour)
    {
        const PxSourceLines::Piece piece = m_lines.at(place);
        if (piece.text.trimmed().isEmpty())
            return;
        const PxSourceFrame frame(piece, place, m_style.width);
        m_text.addLine(frame.source);
        m_text.addLine({{frame.beforeCaret}, {frame.caret, colour}});
    }

    const PxFindingsText::Style m_style;
    const PxSourceLines m_lines;
    PxOutputText &m_text;
};

/** The name of the catalogue, and how much of it there is. */
QString readFiles(const PxCheckReport &report)
{
    const QString files = counted(report.fileCount, "file", "files");
    if (!report.catalogue)
        return files + " read";
    return QString("%1: %2, %3 legacy, %4, %5")
        .arg(QDir(QDir(report.catalogue->path).absolutePath()).dirName(),
             counted(report.catalogue->productCount, "product", "products"),
             QString::number(report.catalogue->legacyProductCount),
             counted(report.catalogue->themeCount, "theme", "themes"), files);
}

void addGone(PxOutputText *text, const PxCheckReport &report)
{
    constexpr int most = 20;
    int listed = 0;
    for (auto it = report.gone.begin(); it != report.gone.end() && listed < most; ++it, ++listed)
        text->addLine(QString("in the baseline, but gone: %1: %2 [%3]")
                          .arg(it.key().path(), it.key().message(), it.key().tag()));
    if (report.gone.size() > listed)
        text->addLine(
            QString("in the baseline, but gone: %1 more").arg(report.gone.size() - listed));
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
    if (report.catalogue && !report.catalogue->from.isEmpty())
        text->addLine(QString("the catalogue is %1 (%2)")
                          .arg(report.catalogue->path, report.catalogue->from));
    text->addLine(QString("%1: %2").arg(readFiles(report), counts.join(", ")));
}

} // namespace

PxOutputText PxFindingsText::of(const PxCheckReport &report, const Style &style)
{
    PxOutputText text;
    Printer printer(report, style, &text);
    for (const PxFinding &finding : report.findings)
        printer.add(finding);
    if (!style.isQuiet) {
        addGone(&text, report);
        addSummary(&text, report);
    }
    return text;
}
