#pragma once

#include "diff/PxDiff.h"
#include "diff/PxExportedCatalogue.h"

#include <QHash>
#include <QSet>

class QJsonArray;

/** Compares two catalogues. */
class PxCatalogueDiff
{
public:
    /**
     * The changes of some keys or sections, "added" and the like among them; of all without any.
     * Whatever follows from a change that is not wanted is a change itself.
     */
    static PxDiff of(const PxExportedCatalogue &oldCatalogue,
                     const PxExportedCatalogue &newCatalogue, const QStringList &only);

private:
    using Objects = PxExportedCatalogue::Objects;

    explicit PxCatalogueDiff(const QStringList &only) : m_only(only) {}

    bool wants(const QString &key) const;
    QVector<PxChange> wanted(QVector<PxChange> changes) const;
    PxDiffOfKind compareProducts(const Objects &oldProducts, const Objects &newProducts);
    PxDiffOfKind compareThemes(const Objects &oldThemes, const Objects &newThemes) const;
    QVector<PxChange> changesOfTheme(const QByteArray &oldLine, const QByteArray &newLine) const;
    bool allowTheSame(const QJsonArray &before, const QJsonArray &after) const;
    void findCauses(const PxDiff &diff);
    void removeExplained(PxDiffOfKind *products, const Objects &objects) const;
    QString newName(const QString &name) const { return m_newNames.value(name, name); }

    QStringList m_only;
    QSet<QString> m_commonThemes;       // ids
    QHash<QString, QString> m_newNames; // of products that are renamed, by the old name
    QSet<QString> m_removed;
    // Products that explain what others say of them: they are only in one of the catalogues, or …
    QSet<QString> m_changedLegacy; // … changed, and of an earlier catalogue
    QSet<QString> m_replacing;     // … replace another one now
};
