#pragma once

#include <PxProductProperties.h>

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QVector>

#include <tuple>

/** A product, with what has to be found out before it can be reported. */
struct PxShownProduct
{
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    QString themeId; ///< empty for none
    /** In the catalogue. Finding it takes reading all files, so it is empty in an export. */
    QString file = {};
    const PxProductTypeDescription *product = registry->description(type);
    QList<int> offeredPageCounts = product->offeredPageCounts();
    int pageCount = 0;
    bool isPageCountAsked = false;        ///< rather than the one with which it is sold
    QList<PxPageContext> pages = {};      ///< all pages in their order, covers included
    QList<PxPageContext> kinds = {};      ///< each different page once
    QVector<QList<int>> pagesOfKind = {}; ///< page numbers, by the index of the kind
    int redirectedPages = 0;              ///< the redirects of this many pages are reported
    /** Each different surrounding once, with the numbers of its pages. */
    QVector<QPair<PxSurroundingDescription, QList<int>>> surroundings = {};
    /** Each barcode with the number of its page. */
    QVector<QPair<PxBarcode, int>> barcodes = {};

    /** All properties of a surrounding, as a key that can be sorted. */
    using SurroundingKey = std::tuple<int, int, int, int, bool, bool, QString, int, int, int, int>;
    QMap<SurroundingKey, int> indexOfSurrounding = {}; ///< in the list

    bool isLegacy() const { return registry != PxProductTypeConfigRegistry::instance(); }
    /** The index of a surrounding in the list, to which it is added if it is new. */
    int indexOf(const PxSurroundingDescription &surrounding);
};
