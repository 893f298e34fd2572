#include "description/PxProductTypeConfigRegistry.h"

#include "description/PxProductTypeDescriptionReader.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxProductCheckerRegistry.h>

#include <QDir>
#include <QVector>

#include <algorithm>

namespace {

int suitablePointSizeForArea(const QSizeF &size)
{
    const auto area = qint64(size.width() / 10.0 * (size.height() / 10.0));
    if (area < 30000)
        return 10;
    if (area < 60000)
        return 16;
    if (area < 120000)
        return 24;
    if (area < 240000)
        return 36;
    return 72;
}

PxProductTypeConfigRegistry *createRegistry(const QString &resource)
{
    return new PxProductTypeConfigRegistry(
        QDir(PxDirectoryConfig::instance()->resource(resource, false)));
}

} // namespace

PxProductTypeConfigRegistry::PxProductTypeConfigRegistry(const QDir &directory)
    : m_descriptions(PxProductTypeDescriptionReader(directory).readDir())
    , m_defaultDescription(new PxProductTypeDescription)
{}

PxProductTypeConfigRegistry::~PxProductTypeConfigRegistry() = default;

PxProductTypeConfigRegistry *PxProductTypeConfigRegistry::instance()
{
    static QAtomicPointer<PxProductTypeConfigRegistry> ourInstance;
    static QMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex,
                        [] { return createRegistry(QStringLiteral("products")); });
}

PxProductTypeConfigRegistry *PxProductTypeConfigRegistry::legacyInstance()
{
    static QAtomicPointer<PxProductTypeConfigRegistry> ourInstance;
    static QMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex,
                        [] { return createRegistry(QStringLiteral("products/legacy")); });
}

bool PxProductTypeConfigRegistry::isValid(const PxProductType &type) const
{
    return exists(type);
}

int PxProductTypeConfigRegistry::minPages(const PxProductType &type) const
{
    return description(type)->minPages();
}

int PxProductTypeConfigRegistry::maxPages(const PxProductType &type) const
{
    return description(type)->maxPages();
}

int PxProductTypeConfigRegistry::pageIncrement(const PxProductType &type) const
{
    return description(type)->pageIncrement();
}

const PxProductTypeDescription *PxProductTypeConfigRegistry::description(
    const PxProductType &type) const
{
    return m_descriptions.value(type, m_defaultDescription);
}

bool PxProductTypeConfigRegistry::exists(const PxProductType &type) const
{
    return description(type)->isValid();
}

// Forwarders: each is the query of the same name, asked of the type's description.
// clang-format off
PxProductType PxProductTypeConfigRegistry::legacyProduct(const PxProductType &type) const { return description(type)->legacyProduct(); }
PxOrientation PxProductTypeConfigRegistry::orientation(const PxProductType &type) const { return description(type)->orientation(); }
PxBinding PxProductTypeConfigRegistry::binding(const PxProductType &type) const { return description(type)->binding(); }
PxPaperType PxProductTypeConfigRegistry::paperType(const PxProductType &type) const { return description(type)->paperType(); }
PxSpaceMagnitude PxProductTypeConfigRegistry::spaceMagnitude(const PxProductType &type) const { return description(type)->spaceMagnitude(); }
QString PxProductTypeConfigRegistry::variantDescription(const PxProductType &type) const { return description(type)->variantDescription(); }
QStringList PxProductTypeConfigRegistry::variants(const PxProductType &type) const { return description(type)->variants(); }
PxThematicCategorySet PxProductTypeConfigRegistry::allowedBackgroundCategories(const PxProductType &type) const { return description(type)->allowedBackgroundCategories(); }
bool PxProductTypeConfigRegistry::limitBackgroundCategories(const PxProductType &type) const { return description(type)->limitBackgroundCategories(); }
bool PxProductTypeConfigRegistry::fullBackgroundOnEachPage(const PxProductType &type) const { return description(type)->fullBackgroundOnEachPage(); }
int PxProductTypeConfigRegistry::explicitNumberOfNormalPages(const PxProductType &type) const { return description(type)->explicitNumberOfNormalPages(); }
PxPageTypeList PxProductTypeConfigRegistry::pageTypes(const PxProductType &type, int pageCount) const { return description(type)->pageTypes(pageCount); }
bool PxProductTypeConfigRegistry::horizontalPages(const PxProductType &type) const { return description(type)->horizontalPages(); }
PxPageAlignment PxProductTypeConfigRegistry::pageAlignment(const PxProductType &type, int page) const { return description(type)->pageAlignment(page); }
QList<int> PxProductTypeConfigRegistry::productionNumberingList(const PxProductType &type, int pageCount) const { return description(type)->productionNumberingList(pageCount); }
QSizeF PxProductTypeConfigRegistry::usablePrintSize(const PxProductType &type, const PxPageType &pageType, int pageCount) const { return description(type)->usablePrintSize(pageType, pageCount); }
PxPageSizeSpec PxProductTypeConfigRegistry::sizeSpec(const PxProductType &type, const PxPageSizeKey &key) const { return description(type)->sizeSpec(key); }
PxBarcode PxProductTypeConfigRegistry::barcodeOnPage(const PxProductType &type, int page, int pageCount) const { return description(type)->barcodeOnPage(page, pageCount); }
// clang-format on

PxProductType PxProductTypeConfigRegistry::findProductForLegacy(const PxProductType &legacy) const
{
    // A product that replaces none names the unknown type, and replaces nothing all the same.
    if (!legacy.isValid())
        return PxProductType(0);
    for (auto it = m_descriptions.begin(); it != m_descriptions.end(); ++it) {
        if (it.value()->legacyProduct() == legacy)
            return it.key();
    }
    return PxProductType(0);
}

PxProductTypeList PxProductTypeConfigRegistry::findCompatibleProducts(
    const PxProductType &type, PxProductComparationCriterion criterion) const
{
    const PxProductTypeDescription *reference = description(type);
    PxProductTypeList compatible;
    for (auto it = m_descriptions.begin(); it != m_descriptions.end(); ++it) {
        if (it.key().productClass() == type.productClass() &&
            it.value()->isCompatible(*reference, criterion) &&
            PxProductCheckerRegistry::instance()->isValid(it.key(), 0))
            compatible.append(it.key());
    }
    return compatible;
}

PxProductClassificationManager PxProductTypeConfigRegistry::createProductClassifationManager(
    const PxProductClass &productClass) const
{
    QList<PxProductClassification> classifications;
    for (auto it = m_descriptions.begin(); it != m_descriptions.end(); ++it) {
        if (it.key().isProductClass(productClass))
            classifications.append(it.value()->classification());
    }
    return PxProductClassificationManager(classifications);
}

QStringList PxProductTypeConfigRegistry::sortPageFileNameListInInternOrder(
    const PxProductType &type, const QStringList &fileNames) const
{
    QVector<QPair<int, int>> positions;
    positions.reserve(fileNames.size());
    const QList<int> numbers = productionNumberingList(type, fileNames.size());
    for (int number : numbers)
        positions.append(qMakePair(number, positions.size()));
    std::sort(positions.begin(), positions.end());

    QStringList sorted;
    sorted.reserve(positions.size());
    for (const auto &position : qAsConst(positions))
        sorted.append(fileNames[position.second]);
    return sorted;
}

int PxProductTypeConfigRegistry::suitablePointSize(const PxProductType &type) const
{
    switch (spaceMagnitude(type).value()) {
    case PxSpaceMagnitude200:
    case PxSpaceMagnitude280:
    case PxSpaceMagnitude310:
        return 12;
    case PxSpaceMagnitude400:
    case PxSpaceMagnitude600:
        return 16;
    case PxSpaceMagnitude900:
    case PxSpaceMagnitude1200:
        return 24;
    default:
        return suitablePointSizeForArea(usablePrintSize(type, PxPageTypeNormalPage, -1));
    }
}

QSizeF PxProductTypeConfigRegistry::usablePrintSizeForBackgroundTemplate(const PxProductType &type,
                                                                         bool singlePage) const
{
    QSizeF size = usablePrintSize(type, PxPageTypeNormalPage, -1);
    if (!singlePage && horizontalPages(type) && type.isBook())
        size.setWidth(size.width() * 2);
    return size;
}

double PxProductTypeConfigRegistry::backgroundRatio(const PxProductType &type,
                                                    bool singlePage) const
{
    const QSizeF size = usablePrintSizeForBackgroundTemplate(type, singlePage);
    return size.height() > 0 ? size.width() / size.height() : 0.0;
}
