#pragma once

#include "geometry/PxDefaultTemplateKey.h"

#include <QMap>
#include <QString>
#include <QVector>

class QDomElement;

/** Which template the editor puts on a new page by default, by theme, kind of page and side. */
class PXPRODUCTPROPERTIES_EXPORT PxDefaultTemplateMap
{
public:
    PxDefaultTemplateMap() = default;
    explicit PxDefaultTemplateMap(const QDomElement &parent);

    /**
     * The name of the default template; empty when there is none.
     *
     * With `useFallback` a theme without a template of its own gets that of the theme "normal".
     */
    QString findTemplate(const PxDefaultTemplateKey &key, bool useFallback) const;

    /**
     * Reads the "defaults" children of the element; a later one wins, also with an empty name.
     *
     * Each holds for all combinations of its "theme", "pageType" and "alignment" lists.
     */
    void applyDefaultsNode(const QDomElement &parent);

    /** The text with lower-case ä, ö, ü and ß as ae, oe, ue and ss, and all else as it is. */
    static QString removeUmlauts(const QString &text);

private:
    struct Defaults
    {
        int pageTypes = 0;  // the union of those that are single bits, as nearly all are
        int alignments = 0; // the alignments of a list are single bits: their union tells them all
        QVector<PxPageTypeEnum> otherPageTypes; // 0 or a union, which is only equal to itself
        QString templates[2];                   // by DefaultTemplateType

        bool isFor(const PxPageContext &page) const;
    };

    static void readPageTypes(const QString &keywords, Defaults &defaults, int &undecodable);
    static Defaults readDefaults(const QDomElement &element, int &undecodable);
    QString findOwnTemplate(const PxDefaultTemplateKey &key) const;

    // The elements as they stand, not their combinations: lists may cross into millions of pages.
    QVector<Defaults> m_defaults;
    QMap<QString, QVector<int>> m_defaultsOfTheme; // sorted: names of a file may share one hash
};
