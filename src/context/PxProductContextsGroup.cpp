#include "context/PxProductContextsGroup.h"

#include "context/PxProductContext.h"
#include "themes/PxThemeFactory.h"

#include <PxXMLBuilder.h>

#include <QDebug>
#include <QDomElement>

PxProductContextsGroup::PxProductContextsGroup(const PxProductContext &context)
    : m_indirectProductDescription(context)
{
    m_productTypes.insert(context.productType());
    m_themes.insert(context.theme());
}

PxProductContextsGroup::PxProductContextsGroup(const PxThemeList &themes)
{
    addThemes(themes);
}

PxProductContextsGroup::PxProductContextsGroup(const PxProductTypeList &productTypes,
                                               const PxThemeList &themes)
{
    setProductTypes(productTypes);
    addThemes(themes);
}

PxProductContextsGroup::PxProductContextsGroup(const PxProductContextsGroup &other) = default;
PxProductContextsGroup &PxProductContextsGroup::operator=(const PxProductContextsGroup &other) =
    default;
PxProductContextsGroup::~PxProductContextsGroup() = default;

PxIndirectProductDescription PxProductContextsGroup::indirectProductDescription() const
{
    return m_indirectProductDescription;
}

PxProductTypeList PxProductContextsGroup::explicitProductTypes() const
{
    return m_productTypes.sorted();
}

QStringList PxProductContextsGroup::themeNames() const
{
    return PxThemeList(m_themes.values()).idList();
}

QString PxProductContextsGroup::themeName() const
{
    if (m_themes.isEmpty())
        return QString();
    PxThemeList themes(m_themes.values());
    themes.normalize();
    return themes.constFirst().id();
}

PxProductContext PxProductContextsGroup::defaultContext() const
{
    if (m_productTypes.isEmpty() || m_themes.isEmpty())
        return PxProductContext();
    return PxProductContext(*m_productTypes.constBegin(), *m_themes.constBegin());
}

double PxProductContextsGroup::defaultWidthHeightRatio() const
{
    const PxProductContext context = defaultContext();
    return context.isValid() ? context.widthByHeight()
                             : m_indirectProductDescription.defaultWidthHeightRatio();
}

bool PxProductContextsGroup::containsProduct(const PxProductType &type) const
{
    return m_productTypes.sharesKey(type);
}

bool PxProductContextsGroup::containsTheme(const PxTheme &theme) const
{
    return m_themes.sharesKey(theme);
}

bool PxProductContextsGroup::containsContext(const PxProductContext &context) const
{
    return containsProduct(context.productType()) &&
           (!context.theme().isValid() || containsTheme(context.theme()));
}

bool PxProductContextsGroup::productsMatchSomewhat(const PxProductContextsGroup &other) const
{
    return m_productTypes.sharesKeysWith(other.m_productTypes);
}

bool PxProductContextsGroup::productsMatchExplicitly(const PxProductContextsGroup &other) const
{
    return m_productTypes.sharesRealKeysWith(other.m_productTypes);
}

bool PxProductContextsGroup::themesMatchSomewhat(const PxProductContextsGroup &other) const
{
    return m_themes.sharesKeysWith(other.m_themes);
}

bool PxProductContextsGroup::themesMatchExplicitly(const PxProductContextsGroup &other) const
{
    return m_themes.sharesRealKeysWith(other.m_themes);
}

bool PxProductContextsGroup::productMatches(const PxProductContextsGroup &other) const
{
    return productsMatchExplicitly(other) ||
           (productsMatchSomewhat(other) &&
            m_indirectProductDescription.matches(other.m_indirectProductDescription));
}

bool PxProductContextsGroup::matches(const PxProductContextsGroup &other) const
{
    return productMatches(other) && themesMatchSomewhat(other);
}

void PxProductContextsGroup::setProductTypes(const PxProductTypeList &productTypes)
{
    m_productTypes.clear();
    for (const PxProductType &type : productTypes)
        m_productTypes.insert(type);
}

void PxProductContextsGroup::addThemes(const PxThemeList &themes)
{
    for (const PxTheme &theme : themes)
        m_themes.insert(theme);
}

void PxProductContextsGroup::setThemes(const PxThemeList &themes)
{
    m_themes.clear();
    addThemes(themes);
}

void PxProductContextsGroup::setIndirectProductDescription(
    const PxIndirectProductDescription &description)
{
    m_indirectProductDescription = description;
}

void PxProductContextsGroup::expandThemesIfMyThemesContainTheDefaultTheme(
    bool acceptNormalBackgrounds, bool acceptNormalLayouts)
{
    const PxThemeFactory *factory = PxThemeFactory::instance();
    if (!containsTheme(factory->defaultTheme()))
        return;
    if (acceptNormalBackgrounds)
        addThemes(factory->findThemesWhichAcceptNormalBackgrounds());
    if (acceptNormalLayouts)
        addThemes(factory->findThemesWhichAcceptNormalLayouts());
}

void PxProductContextsGroup::toXml(QDomElement &parent) const
{
    const PxProductTypeList types = explicitProductTypes();
    for (const PxProductType &type : types)
        PxXMLBuilder::buildDomElement(parent, QStringLiteral("product"), type.productName());
    const QStringList themes = themeNames();
    for (const QString &theme : themes)
        PxXMLBuilder::buildDomElement(parent, QStringLiteral("theme"), theme);
    m_indirectProductDescription.toXml(parent);
}

QDebug operator<<(QDebug debug, const PxProductContextsGroup &group)
{
    const QDebugStateSaver saver(debug);
    const PxProductTypeList types = group.explicitProductTypes();
    const QStringList themes = group.themeNames();
    return debug.nospace() << "PxProductContextsGroup(products "
                           << PxEmptyMeansAllSet<PxProductType>(types.begin(), types.end())
                           << ", themes "
                           << PxEmptyMeansAllSet<QString>(themes.begin(), themes.end()) << ", "
                           << group.indirectProductDescription() << ')';
}
