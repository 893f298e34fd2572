#include "report/PxProductTable.h"

#include "report/PxCatalogueProducts.h"
#include "report/PxReport.h"

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QVector>

namespace {

using Format = PxReportFormat;

QJsonArray row(const PxProductTypeConfigRegistry *registry, const PxProductType &type)
{
    const PxProductTypeDescription *product = registry->description(type);
    return {type.productName(),
            PxCatalogueProducts::className(type),
            PxReportValue::size(product->usablePrintSize(PxPageTypeNormalPage, -1)),
            PxReportValue::name(product->binding()),
            PxReportValue::name(product->paperType()),
            PxReportValue::pageCounts(product->offeredPageCounts(), product->pageIncrement()),
            keywordOf(product->orientation()),
            PxCatalogueProducts::isOffered(registry, type),
            int(type.type()),
            type.shortProductName()};
}

} // namespace

void PxProductTable::addTo(PxReport *report, const PxProductTypeConfigRegistry *registry,
                           const PxProductTypeList &products)
{
    QVector<QJsonArray> rows;
    for (const PxProductType &type : products)
        rows.append(row(registry, type));
    // clang-format off
    report->addTable("products", "", {
        {"name", "Name", Format::Key},
        {"class", "Class", Format::Key},
        {"size", "Size", Format::Size},
        {"binding", "Binding", Format::Name},
        {"paper", "Paper", Format::Name},
        {"pageCounts", "Pages", Format::PageCounts},
        {"orientation", "Orientation"},
        {"isOffered", "Offered", Format::Key},
        {"code", "", Format::JsonOnly},
        {"shortName", "", Format::JsonOnly},
    }, rows);
    // clang-format on
}
