#include "proof/PxProofDifferences.h"

#include "diff/PxDiffText.h"
#include "proof/PxProofWords.h"
#include "writing/PxHtml.h"
#include "writing/PxTerminal.h"

namespace {

constexpr int longest = 1000; // characters of a line

void addLines(PxHtml *html, const QString &heading, const QStringList &lines)
{
    if (lines.isEmpty())
        return;
    html->element("h3", heading);
    html->open("ul", {{"lang", "en"}});
    for (const QString &line : lines)
        html->element("li", PxTerminal::shortened(line, longest));
    html->close();
}

/** A product or theme that changed, as the summary lists it. */
struct Changed
{
    QString name;
    QString page;
    const PxProofChanges &changes;
};

QString nameOf(const PxProofProduct &product)
{
    return product.type.productName();
}

QString nameOf(const PxProofTheme &theme)
{
    return theme.theme.id();
}

template <typename Object>
QVector<Changed> changedOf(const QVector<Object> &objects)
{
    QVector<Changed> changed;
    for (const Object &object : objects) {
        if (!object.changes.isEmpty())
            changed.append({nameOf(object), object.page, object.changes});
    }
    return changed;
}

/** "new", "was OLD, 3 changes". */
QString textOf(const PxProofChanges &changes)
{
    QStringList parts;
    if (changes.isNew)
        parts.append(PxProofWords::tr("neu"));
    if (!changes.oldName.isEmpty())
        parts.append(PxProofWords::tr("hieß %1").arg(changes.oldName));
    const int noticed = PxDiffText::linesOf(changes.changes, true).size();
    const int others = PxDiffText::linesOf(changes.changes, false).size();
    if (noticed > 0)
        parts.append(PxProofWords::tr("Änderungen, die Kunden bemerken: %1").arg(noticed));
    if (others > 0)
        parts.append(PxProofWords::tr("Änderungen nur für die Produktion: %1").arg(others));
    return parts.join(", ");
}

void addKind(PxHtml *html, const QString &heading, const QVector<Changed> &changed,
             const QStringList &removed)
{
    if (changed.isEmpty() && removed.isEmpty())
        return;
    html->element("h3", heading);
    html->open("ul");
    for (const Changed &object : changed) {
        html->open("li");
        html->element("a", PxTerminal::shortened(object.name, longest),
                      {{"href", object.page + ".html"}});
        html->text(": " + textOf(object.changes));
        html->close();
    }
    for (const QString &name : removed)
        html->element("li", PxTerminal::shortened(name, longest) + ": " +
                                PxProofWords::tr("nicht mehr da"));
    html->close();
}

} // namespace

void PxProofDifferences::addTo(PxHtml *html, const PxProofChanges &changes)
{
    if (changes.isEmpty())
        html->element("p", PxProofWords::tr("Nichts hat sich geändert."), {{"class", "quiet"}});
    if (changes.isNew)
        html->element("p", PxProofWords::tr("Im früheren Katalog gibt es das nicht."));
    if (!changes.oldName.isEmpty())
        html->element("p", PxProofWords::tr("Hieß im früheren Katalog %1.").arg(changes.oldName));
    addLines(html, PxProofWords::tr("Was Kunden bemerken"),
             PxDiffText::linesOf(changes.changes, true));
    addLines(html, PxProofWords::tr("Was nur die Produktion bemerkt"),
             PxDiffText::linesOf(changes.changes, false));
}

void PxProofDifferences::addSummary(PxHtml *html, const PxProofCatalogue &catalogue)
{
    const PxDiff &diff = *catalogue.diff;
    if (diff.isEmpty())
        html->element("p", PxProofWords::tr("Nichts hat sich geändert."), {{"class", "quiet"}});
    addKind(html, PxProofWords::tr("Produkte"), changedOf(catalogue.products),
            diff.products.removed);
    addKind(html, PxProofWords::tr("Frühere Produkte"), changedOf(catalogue.legacyProducts),
            diff.legacyProducts.removed);
    addKind(html, PxProofWords::tr("Themen"), changedOf(catalogue.themes), diff.themes.removed);
}
