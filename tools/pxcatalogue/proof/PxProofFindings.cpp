#include "proof/PxProofFindings.h"

#include "check/findings/PxCheckTags.h"
#include "check/source/PxSourceLines.h"
#include "origins/PxOrigin.h"
#include "output/PxSourceFrame.h"
#include "proof/PxProofWords.h"
#include "writing/PxHtml.h"

namespace {

constexpr int sourceWidth = 100;

QString nameOf(const QString &path, const QHash<QString, QString> &fileNames)
{
    return fileNames.value(path, path);
}

/** The finding as it is where the catalogue is not known, so that moving it changes nothing. */
PxFinding inCatalogue(PxFinding finding, const QHash<QString, QString> &fileNames)
{
    finding.place.path = nameOf(finding.place.path, fileNames);
    finding.related.path = nameOf(finding.related.path, fileNames);
    return finding;
}

QVector<PxPlace> placesOf(const QVector<PxFinding> &findings)
{
    QVector<PxPlace> places;
    for (const PxFinding &finding : findings)
        places.append(finding.place);
    return places;
}

void addFinding(PxHtml *html, const PxFinding &finding, const PxSourceLines::Piece &piece)
{
    const QString severity = PxCheckTags::severityName(finding.severity);
    html->open("article", {{"class", "finding " + severity}, {"lang", "en"}});
    html->open("p");
    html->element("span", severity, {{"class", "severity-" + severity}});
    html->text(": " + finding.text() + ' ');
    html->element("span", PxOrigin::text(finding.place), {{"class", "quiet"}});
    html->close();
    if (finding.restCount == 0 && !piece.text.trimmed().isEmpty()) {
        const PxSourceFrame frame(piece, finding.place, sourceWidth);
        html->open("pre", {{"tabindex", "0"}});
        html->text(frame.source);
        html->newLine();
        html->text(frame.beforeCaret + frame.caret);
        html->close();
    }
    if (!finding.now.isEmpty())
        html->element("p", "now: " + finding.now);
    if (!finding.hint.isEmpty())
        html->element("p", "hint: " + finding.hint);
    html->close();
}

} // namespace

void PxProofFindings::addTo(PxHtml *html, const QVector<PxFinding> &findings,
                            const QHash<QString, QString> &fileNames, const PxCheckedFile *file)
{
    if (findings.isEmpty()) {
        html->element("p", PxProofWords::tr("Keine Befunde."), {{"class", "quiet"}});
        return;
    }
    const QVector<PxPlace> places = placesOf(findings);
    const PxSourceLines lines = file ? PxSourceLines(*file, places) : PxSourceLines(places);
    for (const PxFinding &finding : findings)
        addFinding(html, inCatalogue(finding, fileNames), lines.at(finding.place));
}
