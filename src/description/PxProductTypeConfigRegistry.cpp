#include "description/PxProductTypeConfigRegistry.h"

#include "description/PxProductTypeDescriptionReader.h"
#include "values/PxUndecodableNames.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxProductCheckerRegistry.h>

#include <QAtomicPointer>
#include <QDir>
#include <QMutex>
#include <QPair>

#include <algorithm>
#include <utility>

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
{
    m_products.reserve(m_descriptions.size());
    for (auto it = m_descriptions.constBegin(); it != m_descriptions.constEnd(); ++it)
        m_products.append({it.key(), it.value()});
    // By code: the order of the hash is another one in each process.
    std::sort(m_products.begin(), m_products.end(),
              [](const Product &a, const Product &b) { return a.type < b.type; });
}

PxProductTypeConfigRegistry::~PxProductTypeConfigRegistry() = default;

PxProductTypeConfigRegistry *PxProductTypeConfigRegistry::instance()
{
    static QAtomicPointer<PxProductTypeConfigRegistry> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] {
        // No product has such a file's name, so that nobody would ever open it.
        PxUndecodableNames::warn(PxDirectoryConfig::instance()->userDefaultsPath());
        return createRegistry(QStringLiteral("products"));
    });
}

PxProductTypeConfigRegistry *PxProductTypeConfigRegistry::legacyInstance()
{
    static QAtomicPointer<PxProductTypeConfigRegistry> ourInstance;
    static QBasicMutex ourMutex;
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

bool PxProductTypeConfigRegistry::exists(const PxProductType &type) const
{
    return description(type)->isValid();
}

PxProductTypeList PxProductTypeConfigRegistry::products() const
{
    PxProductTypeList types;
    for (const Product &product : m_products) {
        if (product.description->isValid())
            types.append(product.type);
    }
    std::sort(types.begin(), types.end(), [](const PxProductType &a, const PxProductType &b) {
        return std::make_pair(a.productClass(), a.productName()) <
               std::make_pair(b.productClass(), b.productName());
    });
    return types;
}

PxProductType PxProductTypeConfigRegistry::findProductForLegacy(const PxProductType &legacy) const
{
    // A product that replaces no other has the unknown type here, which must not match.
    if (!legacy.isValid())
        return PxProductType(0);
    for (const Product &product : m_products) {
        if (product.description->legacyProduct() == legacy)
            return product.type;
    }
    return PxProductType(0);
}

PxProductTypeList PxProductTypeConfigRegistry::findCompatibleProducts(
    const PxProductType &type, PxProductComparationCriterion criterion) const
{
    const PxProductTypeDescription *reference = description(type);
    PxProductTypeList compatible;
    for (const Product &product : m_products) {
        if (product.type.productClass() == type.productClass() &&
            product.description->isCompatible(*reference, criterion) &&
            PxProductCheckerRegistry::instance()->isValid(product.type, 0))
            compatible.append(product.type);
    }
    return compatible;
}

PxProductClassificationManager PxProductTypeConfigRegistry::createProductClassifationManager(
    const PxProductClass &productClass) const
{
    QList<PxProductClassification> classifications;
    for (const Product &product : m_products) {
        if (product.type.isProductClass(productClass))
            classifications.append(product.description->classification());
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
