#include "diff/PxDiffJson.h"

#include "diff/PxDiff.h"
#include "report/PxReport.h"

#include <QJsonArray>

namespace {

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : text;
}

QJsonObject jsonOf(const PxChange &change)
{
    return {{"key", change.pointer},
            {"before", change.before},
            {"after", change.after},
            {"pageCounts", orNull(change.pageCounts)},
            {"forCustomers", change.key->forCustomers},
            {"place", orNull(change.place)}};
}

QJsonObject jsonOf(const PxDiffOfKind &diff)
{
    QJsonArray renamed;
    for (const PxRenamedProduct &product : diff.renamed)
        renamed.append(
            QJsonObject{{"code", product.code}, {"from", product.from}, {"to", product.to}});
    QJsonArray changed;
    for (const PxChangedObject &object : diff.changed) {
        QJsonArray changes;
        for (const PxChange &change : object.changes)
            changes.append(jsonOf(change));
        changed.append(QJsonObject{{"name", object.name}, {"changes", changes}});
    }
    return {{"added", QJsonArray::fromStringList(diff.added)},
            {"removed", QJsonArray::fromStringList(diff.removed)},
            {"renamed", renamed},
            {"changed", changed}};
}

} // namespace

QJsonObject PxDiffJson::of(const PxDiff &diff)
{
    return {{"format", PxReport::formatVersion},
            {"lengthUnit", PxReport::lengthUnit},
            {"products", jsonOf(diff.products)},
            {"legacyProducts", jsonOf(diff.legacyProducts)},
            {"themes", jsonOf(diff.themes)}};
}
