#include "themes/PxThemeConfig.h"

#include <QStringList>

#include <algorithm>

PxThemeConfig::PxThemeConfig()
    : m_id(QStringLiteral("unbekannt"))
    , m_description(QStringLiteral("unbekannt"))
{}

PxThemeConfig::PxThemeConfig(const QString &id, const PxProductGroup &productGroup,
                             const QString &description, const QDateTime &expiryDate,
                             const QImage &thumbnail, const PxKeyAccountNumberList &keyAccounts,
                             const QMap<PxProductTypeEnum, QPair<QImage, QRect>> &logos,
                             const PxEmptyMeansAllSet<PxProductType> &allowedProductTypes,
                             bool useSpineText, bool canMoveContent, bool canUseNormalBackgrounds,
                             const PxDefaultThematicCategories &defaultCategories,
                             bool useSpineLogo)
    : m_id(id)
    , m_productGroup(productGroup)
    , m_expiryDate(expiryDate)
    , m_description(description)
    , m_thumbnail(thumbnail)
    , m_keyAccounts(keyAccounts)
    , m_logos(logos)
    , m_useSpineText(useSpineText)
    , m_useSpineLogo(useSpineLogo)
    , m_canMoveContent(canMoveContent)
    , m_canUseNormalBackgrounds(canUseNormalBackgrounds)
    , m_defaultCategories(defaultCategories)
    , m_allowedProductTypes(allowedProductTypes)
{}

PxThemeConfig::~PxThemeConfig() = default;

PxThematicCategory PxThemeConfig::defaultCategory(const PxJigType &jigType) const
{
    return m_defaultCategories.value(jigType, PxThematicCategory(QString(), QString()));
}

bool PxThemeConfig::operator==(const PxThemeConfig &other) const
{
    return m_id == other.m_id && m_productGroup == other.m_productGroup &&
           m_expiryDate == other.m_expiryDate && m_description == other.m_description &&
           m_thumbnail == other.m_thumbnail && m_keyAccounts == other.m_keyAccounts &&
           m_logos == other.m_logos && m_useSpineText == other.m_useSpineText &&
           m_useSpineLogo == other.m_useSpineLogo && m_canMoveContent == other.m_canMoveContent &&
           m_canUseNormalBackgrounds == other.m_canUseNormalBackgrounds &&
           m_defaultCategories == other.m_defaultCategories;
}

QString PxThemeConfig::sortingKey() const
{
    QStringList parts{m_id, m_description};
    const auto append = [&parts](qint64 number) { parts.append(QString::number(number)); };
    append(m_expiryDate.toMSecsSinceEpoch());
    append(m_productGroup.value());
    for (bool flag : {m_useSpineText, m_useSpineLogo, m_canMoveContent, m_canUseNormalBackgrounds})
        append(flag);
    append(m_keyAccounts.size());
    std::for_each(m_keyAccounts.begin(), m_keyAccounts.end(), append);
    append(m_logos.size());
    for (auto logo = m_logos.begin(); logo != m_logos.end(); ++logo) {
        const QRect &place = logo->second;
        for (int number : {int(logo.key()), place.x(), place.y(), place.width(), place.height()})
            append(number);
    }
    for (PxJigTypeEnum jigType : {PxJigTypeBackground, PxJigTypeClipart, PxJigTypeContent,
                                  PxJigTypeLayout, PxJigTypePassepartout, PxJigTypeFrame})
        parts.append(defaultCategory(jigType).name().toCaseFolded()); // == ignores the case
    return parts.join(QChar::Null); // no text from a file contains it
}
