#pragma once

#include "geometry/PxDefaultTemplateKey.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class QDomElement;

/** The templates that the editor puts on new pages by default, by theme, kind of page and side. */
class PXPRODUCTPROPERTIES_EXPORT PxDefaultTemplateMap
{
public:
    PxDefaultTemplateMap() = default;
    /** Reads as applyDefaultsNode() does. */
    explicit PxDefaultTemplateMap(const QDomElement &parent);

    /**
     * The name of the default template; empty if there is none.
     *
     * With `useFallback` a theme without a template of its own gets that of the theme "normal".
     */
    QString findTemplate(const PxDefaultTemplateKey &key, bool useFallback) const;

    /** The themes that the lists name, in ascending order. */
    QStringList themes() const { return m_defaultsOfTheme.keys(); }

    /**
     * Reads the "defaults" children of the element. A later one overrides an earlier one, even with
     * an empty name.
     *
     * Each child applies to all combinations of its "theme", "pageType" and "alignment" lists.
     */
    void applyDefaultsNode(const QDomElement &parent);

    /** The text with lower-case ä, ö, ü and ß replaced by ae, oe, ue and ss. */
    static QString removeUmlauts(const QString &text);

private:
    class Names;
    struct Defaults
    {
        int pageTypes = 0; // the union of all page types that are a single bit, as nearly all are
        QVector<PxPageTypeEnum> otherPageTypes; // 0 and unions: a page must equal one of them
        PxPageAlignment alignments = PxPageAlignmentNone; // the union; each is a single bit
        QString templates[2];                             // by DefaultTemplateType

        bool isFor(const PxPageContext &page) const;
    };

    static void readPageTypes(const QString &keywords, Defaults &defaults, int &undecodable);
    static Defaults readDefaults(const QDomElement &element, Names &names, int &undecodable);
    QString findOwnTemplate(const PxDefaultTemplateKey &key) const;

    // One entry per element, not per combination: crossed lists could give millions of
    // combinations.
    QVector<Defaults> m_defaults;
    QMap<QString, QVector<int>> m_defaultsOfTheme; // no hash: a hostile file can make it slow
};
