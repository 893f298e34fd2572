#include "variants/PxProductVariantListModel.h"

#include "variants/PxProductVariantIdentifiers.h"

namespace {

QMap<QString, QColor> createColors()
{
    constexpr struct
    {
        const char *name;
        QRgb color;
    } rows[] = {
        {"schwarz", qRgb(0, 0, 0)},      {"weiß", qRgb(255, 255, 255)},
        {"weinrot", qRgb(175, 39, 93)},  {"gelb", qRgb(255, 209, 76)},
        {"grün", qRgb(0, 89, 92)},       {"blau", qRgb(40, 21, 119)},
        {"rot", qRgb(203, 0, 0)},        {"pink", qRgb(230, 0, 230)},
        {"hellblau", qRgb(0, 255, 153)}, // Replaced by the valid one below.
        {"violett", qRgb(77, 0, 255)},   {"hellblau", qRgb(14, 166, 167)},
    };
    QMap<QString, QColor> colors;
    for (const auto &row : rows)
        colors.insert(QString::fromUtf8(row.name), QColor(row.color));
    return colors;
}

/** No value for an invalid colour: a view that uses its name would show black. */
QVariant colorValue(const QColor &color)
{
    return color.isValid() ? QVariant(color) : QVariant();
}

QPixmap swatchOf(const QColor &color)
{
    if (!color.isValid())
        return QPixmap();
    QPixmap swatch(100, 100);
    swatch.fill(color);
    return swatch;
}

} // namespace

const QMap<QString, QColor> &PxProductVariantListModel::ourColors =
    *new QMap<QString, QColor>(createColors());

PxProductVariantListModel::PxProductVariantListModel(const PxProductType &type, QObject *parent)
    : QAbstractListModel(parent)
{
    setProduct(type);
}

QPixmap PxProductVariantListModel::colorDescriptionToPixmap(const QString &description)
{
    return swatchOf(colorOf(description));
}

int PxProductVariantListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

int PxProductVariantListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QModelIndex PxProductVariantListModel::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QVariant PxProductVariantListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_names.size())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return m_names[index.row()];
    case Qt::DecorationRole:
        return m_icons[index.row()];
    case IdentifierRole:
        return m_identifiers[index.row()];
    case ColorRole:
        return colorValue(m_colors[index.row()]);
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> PxProductVariantListModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert(IdentifierRole, QByteArrayLiteral("identifier"));
    names.insert(ColorRole, QByteArrayLiteral("color"));
    return names;
}

int PxProductVariantListModel::indexOf(const QString &identifier) const
{
    return m_identifiers.indexOf(identifier);
}

QString PxProductVariantListModel::identifier(const QString &name) const
{
    return m_identifiers.value(m_names.indexOf(name));
}

void PxProductVariantListModel::setProduct(const PxProductType &type)
{
    const auto *identifiers = PxProductVariantIdentifiers::instance();
    const QMap<QString, QString> variants = identifiers->variants(type);
    beginResetModel();
    m_product = type;
    m_identifiers = variants.keys(); // sorted by the map, case-sensitively
    m_names = variants.values();
    m_colors.clear();
    m_icons.clear();
    for (auto it = variants.begin(); it != variants.end(); ++it) {
        m_sizeNeeded = qMax(m_sizeNeeded, it->size());
        const QColor shown = colorOf(*it);
        const QColor color =
            shown.isValid() ? shown : colorOf(identifiers->untranslatedName(type, it.key()));
        m_colors.append(color);
        m_icons.append(QIcon(swatchOf(color)));
    }
    endResetModel();
}

/** Invalid for a text that is not the German name of a colour. */
QColor PxProductVariantListModel::colorOf(const QString &name)
{
    return ourColors.value(name.toLower());
}
