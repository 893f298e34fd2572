#include "variants/PxProductTypeVariationListModel.h"

#include "description/PxProductTypeConfigRegistry.h"

#include <algorithm>

namespace {

QString paperName(const PxProductType &type)
{
    return PxProductTypeConfigRegistry::instance()->paperType(type).humanReadableName();
}

QString bindingName(const PxProductType &type)
{
    return PxProductTypeConfigRegistry::instance()->binding(type).humanReadableName();
}

} // namespace

PxProductTypeVariationListModel::PxProductTypeVariationListModel(
    const PxProductContext &context, PxProductComparationCriterion criterion, QObject *parent)
    : QAbstractListModel(parent)
    , m_productContext(context)
    , m_criterion(criterion)
{
    updateContent();
}

int PxProductTypeVariationListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_products.size();
}

int PxProductTypeVariationListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant PxProductTypeVariationListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_products.size())
        return QVariant();
    const PxProductType &product = m_products[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return displayName(product);
    case ProductTypeRole:
        return QVariant::fromValue(product);
    case ProductNameRole:
        return product.productName();
    case ProductCodeRole:
        return int(product.type());
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> PxProductTypeVariationListModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert(ProductTypeRole, QByteArrayLiteral("productType"));
    names.insert(ProductNameRole, QByteArrayLiteral("productName"));
    names.insert(ProductCodeRole, QByteArrayLiteral("productCode"));
    return names;
}

PxProductType PxProductTypeVariationListModel::productAt(int row) const
{
    return m_products.value(row);
}

QModelIndex PxProductTypeVariationListModel::indexOf(const PxProductType &type) const
{
    return index(m_products.indexOf(type));
}

QModelIndex PxProductTypeVariationListModel::indexOfCurrentProduct() const
{
    return indexOf(m_productContext.productType());
}

PxProductTypeList PxProductTypeVariationListModel::filterAllowedByTheme(
    const PxProductTypeList &list) const
{
    PxProductTypeList products = m_productContext.theme().allowedProductTypes().sharedKeys(list);
    if (m_criterion == PxProductComparationAllButPaperType)
        std::sort(products.begin(), products.end(), lessThanPaper);
    else if (m_criterion == PxProductComparationAllButBinding)
        std::sort(products.begin(), products.end(), lessThanBinding);
    return products;
}

void PxProductTypeVariationListModel::setProductContext(const PxProductContext &context)
{
    if (context == m_productContext)
        return;
    m_productContext = context;
    updateContent();
}

void PxProductTypeVariationListModel::updateContent()
{
    const PxProductTypeList products =
        filterAllowedByTheme(PxProductTypeConfigRegistry::instance()->findCompatibleProducts(
            m_productContext.productType(), m_criterion));
    beginResetModel();
    m_products = products;
    endResetModel();
}

QVariant PxProductTypeVariationListModel::displayName(const PxProductType &product) const
{
    switch (m_criterion) {
    case PxProductComparationAllButPaperType:
        return paperName(product);
    case PxProductComparationAllButBinding:
        return bindingName(product);
    default:
        return QVariant();
    }
}

bool lessThanQString(const QString &a, const QString &b)
{
    return QString::compare(a, b, Qt::CaseSensitive) < 0;
}

bool lessThanBinding(const PxProductType &a, const PxProductType &b)
{
    return lessThanQString(bindingName(a), bindingName(b));
}

bool lessThanPaper(const PxProductType &a, const PxProductType &b)
{
    return lessThanQString(paperName(a), paperName(b));
}
