#include "diff/PxCatalogueDiff.h"

#include "diff/PxExplainedChanges.h"
#include "diff/PxProductDiff.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

/** The keys of a map that another one does not have. */
template <typename Map>
QList<typename Map::key_type> missingIn(const Map &other, const Map &map)
{
    QList<typename Map::key_type> missing;
    for (auto object = map.begin(); object != map.end(); ++object) {
        if (!other.contains(object.key()))
            missing.append(object.key());
    }
    return missing;
}

QStringList namesOf(const QList<PxExportedCatalogue::Key> &keys)
{
    QStringList names;
    for (const auto &key : keys)
        names.append(key.first);
    return names;
}

bool hasChange(const PxChangedObject &object, const char *key)
{
    return std::any_of(object.changes.begin(), object.changes.end(), [key](const PxChange &change) {
        return qstrcmp(change.key->pointer, key) == 0;
    });
}

} // namespace

PxDiff PxCatalogueDiff::of(const PxExportedCatalogue &oldCatalogue,
                           const PxExportedCatalogue &newCatalogue, const QStringList &only)
{
    PxCatalogueDiff comparison(only);
    for (auto theme = newCatalogue.themes().begin(); theme != newCatalogue.themes().end();
         ++theme) {
        if (oldCatalogue.themes().contains(theme.key()))
            comparison.m_commonThemes.insert(theme.key().first);
    }
    PxDiff diff;
    diff.products = comparison.compareProducts(oldCatalogue.products(), newCatalogue.products());
    diff.legacyProducts =
        comparison.compareProducts(oldCatalogue.legacyProducts(), newCatalogue.legacyProducts());
    comparison.findCauses(diff);
    comparison.removeExplained(&diff.products, newCatalogue.products());
    comparison.removeExplained(&diff.legacyProducts, newCatalogue.legacyProducts());
    diff.themes = comparison.compareThemes(oldCatalogue.themes(), newCatalogue.themes());
    return diff;
}

bool PxCatalogueDiff::wants(const QString &key) const
{
    return m_only.isEmpty() || m_only.contains(key) || m_only.contains(key.section('/', 0, 1));
}

QVector<PxChange> PxCatalogueDiff::wanted(QVector<PxChange> changes) const
{
    const auto isUnwanted = [this](const PxChange &change) { return !wants(change.key->pointer); };
    changes.erase(std::remove_if(changes.begin(), changes.end(), isUnwanted), changes.end());
    return changes;
}

PxDiffOfKind PxCatalogueDiff::compareProducts(const Objects &oldProducts,
                                              const Objects &newProducts)
{
    PxDiffOfKind diff;
    QHash<int, QString> removed; // by code
    for (const QString &name : namesOf(missingIn(newProducts, oldProducts)))
        removed.insert(oldProducts[{name, 0}].code, name);
    QMap<QString, QString> oldNames; // by the new one
    for (const QString &name : namesOf(missingIn(oldProducts, newProducts))) {
        const int code = newProducts[{name, 0}].code;
        const QString oldName = removed.take(code);
        if (!oldName.isEmpty())
            oldNames.insert(name, oldName);
        else if (wants("added"))
            diff.added.append(name);
        if (oldName.isEmpty() || !wants("renamed"))
            continue;
        diff.renamed.append({code, oldName, name});
        m_newNames.insert(oldName, name);
    }
    const QSet<QString> renamed(oldNames.begin(), oldNames.end());
    for (const QString &name : namesOf(missingIn(newProducts, oldProducts))) {
        if (!renamed.contains(name) && wants("removed"))
            diff.removed.append(name);
    }
    for (auto product = newProducts.begin(); product != newProducts.end(); ++product) {
        const QString name = product.key().first;
        const auto old = oldProducts.find({oldNames.value(name, name), 0});
        if (old == oldProducts.end() || old->line == product->line)
            continue;
        const QVector<PxChange> changes = PxExplainedChanges::removedFrom(
            wanted(PxProductDiff(old->line, product->line, m_commonThemes).changes()));
        if (!changes.isEmpty())
            diff.changed.append({name, changes});
    }
    return diff;
}

/** What other products and themes say of a product follows from the changes of that one. */
void PxCatalogueDiff::findCauses(const PxDiff &diff)
{
    for (const PxDiffOfKind *kind : {&diff.products, &diff.legacyProducts}) {
        for (const QString &name : kind->removed)
            m_removed.insert(name);
        for (const QString &name : kind->added + kind->removed) {
            m_changedLegacy.insert(name);
            m_replacing.insert(name);
        }
    }
    for (const PxChangedObject &object : diff.legacyProducts.changed)
        m_changedLegacy.insert(object.name);
    for (const PxChangedObject &object : diff.products.changed) {
        if (hasChange(object, "/legacy/replaces"))
            m_replacing.insert(object.name);
    }
}

void PxCatalogueDiff::removeExplained(PxDiffOfKind *products, const Objects &objects) const
{
    QVector<PxChangedObject> changed;
    for (PxChangedObject product : qAsConst(products->changed)) {
        const QJsonObject object =
            QJsonDocument::fromJson(objects[{product.name, 0}].line).object();
        const bool isReplacedChanged =
            m_changedLegacy.contains(object["legacy"]["replaces"].toString());
        const auto isExplained = [&](const PxChange &change) {
            const QString key = change.key->pointer;
            const QString before = change.before.toString();
            const QString after = change.after.toString();
            // Without a name in the shop a product is called by its own name there.
            if (key == "/legacy/replaces" || key == "/product/shortName")
                return newName(before) == after;
            if (key == "/legacy/replacedBy")
                return newName(before) == after || m_replacing.contains(before) ||
                       m_replacing.contains(after);
            return key.startsWith("/legacy/") && isReplacedChanged;
        };
        auto &changes = product.changes;
        changes.erase(std::remove_if(changes.begin(), changes.end(), isExplained), changes.end());
        if (!changes.isEmpty())
            changed.append(product);
    }
    products->changed = changed;
}

PxDiffOfKind PxCatalogueDiff::compareThemes(const Objects &oldThemes,
                                            const Objects &newThemes) const
{
    PxDiffOfKind diff;
    if (wants("added"))
        diff.added = namesOf(missingIn(oldThemes, newThemes));
    if (wants("removed"))
        diff.removed = namesOf(missingIn(newThemes, oldThemes));
    for (auto theme = newThemes.begin(); theme != newThemes.end(); ++theme) {
        const auto old = oldThemes.find(theme.key());
        if (old == oldThemes.end() || old->line == theme->line)
            continue;
        const QVector<PxChange> changes = wanted(changesOfTheme(old->line, theme->line));
        if (!changes.isEmpty())
            diff.changed.append({theme.key().first, changes});
    }
    return diff;
}

QVector<PxChange> PxCatalogueDiff::changesOfTheme(const QByteArray &oldLine,
                                                  const QByteArray &newLine) const
{
    const QJsonObject oldTheme = QJsonDocument::fromJson(oldLine).object();
    const QJsonObject newTheme = QJsonDocument::fromJson(newLine).object();
    QVector<PxChange> changes;
    for (const PxDiffKey &key : PxDiffKeys::ofThemes()) {
        const QString member = key.pointer;
        const QJsonValue before = oldTheme[member];
        const QJsonValue after = newTheme[member];
        if (before.isUndefined() || after.isUndefined() || before == after)
            continue;
        if (member != "allowedProducts" || !allowTheSame(before.toArray(), after.toArray()))
            changes.append({&key, member, QString(), before, after});
    }
    return changes;
}

/** Apart from products that are gone or have another name. An empty list allows all. */
bool PxCatalogueDiff::allowTheSame(const QJsonArray &before, const QJsonArray &after) const
{
    if (before.isEmpty() != after.isEmpty())
        return false;
    QSet<QString> oldNames;
    for (const auto &name : before)
        oldNames.insert(newName(name.toString()));
    QSet<QString> newNames;
    for (const auto &name : after)
        newNames.insert(name.toString());
    return oldNames.subtract(m_removed) == newNames.subtract(m_removed);
}
