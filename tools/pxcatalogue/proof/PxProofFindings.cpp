#include "proof/PxProofFindings.h"

#include "check/findings/PxCheckTags.h"
#include "check/source/PxSourceLines.h"
#include "output/PxSourceFrame.h"
#include "proof/PxHtml.h"
#include "proof/PxProofWords.h"

namespace {

constexpr int sourceWidth = 100;

QString textOf(const PxPlace &place)
{
    return QString("%1:%2:%3").arg(place.path).arg(place.line).arg(place.column);
}

QVector<PxPlace> placesOf(const QVector<PxFinding> &findings)
{
    QVector<PxPlace> places;
    for (const PxFinding &finding : findings)
        places.append(finding.place);
    return places;
}

void addFinding(PxHtml *html, const PxFinding &finding, const PxSourceLines &lines)
{
    const QString severity = PxCheckTags::severityName(finding.severity);
    html->open("article", {{"class", "finding " + severity}, {"lang", "en"}});
    html->open("p");
    html->element("span", severity, {{"class", "severity-" + severity}});
    html->text(": " + finding.text() + ' ');
    html->element("span", textOf(finding.place), {{"class", "quiet"}});
    html->close();
    const PxSourceLines::Piece piece = lines.at(finding.place);
    if (finding.restCount == 0 && !piece.text.trimmed().isEmpty()) {
        const PxSourceFrame frame(piece, finding.place, sourceWidth);
        html->open("pre", {{"tabindex", "0"}});
        html->text(frame.source);
        html->writer()->writeCharacters("\n");
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

void PxProofFindings::addTo(PxHtml *html, const QVector<PxFinding> &findings)
{
    if (findings.isEmpty()) {
        html->element("p", PxProofWords::tr("Keine Befunde."), {{"class", "quiet"}});
        return;
    }
    const PxSourceLines lines(placesOf(findings));
    for (const PxFinding &finding : findings)
        addFinding(html, finding, lines);
}
