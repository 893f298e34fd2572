#pragma once

#include "report/PxReport.h"

#include <PxProductType.h>
#include <geometry/DefaultTemplateType.h>
#include <geometry/PxPageContext.h>

class PxProductTypeConfigRegistry;
class PxProductTypeDescription;

/** Everything that the library answers about one product of a certain page count. */
class PxProductReport
{
public:
    /** The largest page count that is shown: pages are shown one by one. */
    static constexpr int maximumPageCount = 9999;

    /**
     * A product of this registry, the current one or the legacy one.
     *
     * With `pageCount` 0 the product has as many pages as it is sold with; any other number with
     * which it is not offered causes a warning. With a theme, which is for current products only,
     * it is designed in that.
     */
    PxProductReport(const PxProductTypeConfigRegistry *registry, const PxProductType &type,
                    int pageCount, const QString &themeId);

    PxReport report() const { return m_report; }

private:
    void addProduct();
    void addDesign();
    void addPages();
    void addSizes();
    void addPageKinds();
    void addSpine();
    void addSurroundings();
    void addBarcodes();
    void addTemplates();
    void addTheme();
    void addVariants();
    void addClassification();
    void addLegacy();
    void addProduction();
    void addRedirects();

    QString defaultTemplate(const PxPageContext &kind, DefaultTemplateType type) const;

    const PxProductTypeConfigRegistry *m_registry;
    PxProductType m_type;
    const PxProductTypeDescription *m_product; // the registry's
    QList<int> m_offeredPageCounts;
    int m_pageCount;
    QString m_themeId;                 // empty for none
    QList<PxPageContext> m_pages;      // all pages in their order, covers included
    QList<PxPageContext> m_kinds;      // each of them once
    QVector<QList<int>> m_pagesOfKind; // the same index
    PxReport m_report;
};
