#include "themes/PxThemeFactory.h"

#include "themes/PxThemeImages.h"
#include "values/PxJigType.h"
#include "values/PxUndecodableNames.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxMessage.h>
#include <PxXMLLoader.h>
#include <PxXMLParser.h>

#include <QAtomicPointer>
#include <QDateTime>
#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QImage>
#include <QMutex>
#include <QPair>
#include <QRect>
#include <QVarLengthArray>
#include <QVector>

#include <algorithm>

namespace {

PxKeyAccountNumberList readKeyAccounts(const QDomElement &keyAccounts)
{
    PxKeyAccountNumberList numbers;
    for (QDomNode node = keyAccounts.firstChild(); !node.isNull(); node = node.nextSibling())
        numbers.append(node.toElement().text().toInt());
    return numbers;
}

PxEmptyMeansAllSet<PxProductType> readProducts(const QDomElement &products)
{
    PxEmptyMeansAllSet<PxProductType> types;
    const QString tag = QStringLiteral("product");
    for (QDomElement e = products.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        const PxProductType type(e.text());
        if (type.isValid())
            types.insert(type);
    }
    return types;
}

QMap<PxProductTypeEnum, QPair<QImage, QRect>> readLogos(const QDomElement &logos,
                                                        PxThemeImages &images)
{
    QMap<PxProductTypeEnum, QPair<QImage, QRect>> logoOfType;
    for (QDomNode node = logos.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement logo = node.toElement();
        const QString fileName = logo.attribute(QStringLiteral("filename")).toLower();
        const QImage image = images.image(PxDirectoryConfig::instance()->resource(fileName, false));
        const PxProductType type(logo.attribute(QStringLiteral("booktype")).toUpper());
        logoOfType.insert(type.type(), qMakePair(image, PxXMLParser::readRect(logo.attributes())));
    }
    return logoOfType;
}

PxDefaultThematicCategories readDefaultCategories(const QDomElement &defaultCategories)
{
    struct Row
    {
        QString attribute;
        PxJigTypeEnum jigType;
    };
    static const auto &ourRows = *new QVector<Row>{
        {QStringLiteral("background"), PxJigTypeBackground},
        {QStringLiteral("clipart"), PxJigTypeClipart},
        {QStringLiteral("fading"), PxJigTypePassepartout},
        {QStringLiteral("content"), PxJigTypeContent},
        {QStringLiteral("frame"), PxJigTypeFrame},
        {QStringLiteral("layout"), PxJigTypeLayout},
    };
    PxDefaultThematicCategories categories;
    categories.reserve(ourRows.size());
    for (const Row &row : ourRows)
        categories.insert(
            row.jigType, PxThematicCategory(defaultCategories.attribute(row.attribute), QString()));
    return categories;
}

/** The child elements of an element. They are visited once, even if many of them are looked up. */
class ChildElements
{
public:
    explicit ChildElements(const QDomElement &parent)
    {
        for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            m_children.append({e.tagName(), e});
    }

    /** Null if there is none with this name. */
    QDomElement first(const QString &name) const
    {
        for (const auto &[childName, child] : m_children) {
            if (childName == name)
                return child;
        }
        return QDomElement();
    }

private:
    QVarLengthArray<QPair<QString, QDomElement>, 16> m_children; // more than a theme has
};

/** A theme without an expiry date has always been expired: it is offered to nobody. */
QDateTime readExpiry(const QDomElement &theme)
{
    const QString name = QStringLiteral("expiry");
    const auto read = [&name](const QDomElement &element) {
        return PxXMLParser::dateTimeAttribute(element, name, QStringLiteral("197612302359"));
    };
    static const auto &ourDefault = *new QDateTime(read(QDomElement())); // slow to convert
    return theme.hasAttribute(name) ? read(theme) : ourDefault;
}

PxTheme readTheme(const QDomElement &theme, PxThemeImages &images)
{
    const QString id = theme.attribute(QStringLiteral("id"), QStringLiteral("unbekannt")).toLower();
    const PxProductGroup productGroup(theme.attribute(QStringLiteral("producttype")));
    const QDateTime expiry = readExpiry(theme);
    const QImage thumbnail = images.image(theme.attribute(QStringLiteral("thumbnail")).toLower());

    const ChildElements children(theme);
    const QDomElement text = children.first(QStringLiteral("description"));
    const QString description = text.isNull() ? QStringLiteral("unbekannt") : text.text();
    const PxKeyAccountNumberList keyAccounts =
        readKeyAccounts(children.first(QStringLiteral("keyaccounts")));
    const PxEmptyMeansAllSet<PxProductType> products =
        readProducts(children.first(QStringLiteral("products")));
    const auto logos = readLogos(children.first(QStringLiteral("logos")), images);

    const QString use = QStringLiteral("use");
    const bool useSpineText =
        PxXMLParser::boolAttribute(children.first(QStringLiteral("spinetext")), use, false);
    const bool useSpineLogo =
        PxXMLParser::boolAttribute(children.first(QStringLiteral("spinelogo")), use, true);
    const QDomElement content = children.first(QStringLiteral("content"));
    const bool canMoveContent =
        PxXMLParser::boolAttribute(content, QStringLiteral("movable"), false);
    const bool canUseNormalBackgrounds =
        PxXMLParser::boolAttribute(content, QStringLiteral("normalBackgrounds"), true);
    const PxDefaultThematicCategories categories =
        readDefaultCategories(children.first(QStringLiteral("defaultcategories")));

    return PxTheme(id, productGroup, description, expiry, thumbnail, keyAccounts, logos,
                   useSpineText, canMoveContent, canUseNormalBackgrounds, categories, useSpineLogo,
                   products);
}

} // namespace

PxThemeFactory *PxThemeFactory::instance()
{
    static QAtomicPointer<PxThemeFactory> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] {
        auto *factory = new PxThemeFactory;
        factory->init();
        return factory;
    });
}

PxThemeList PxThemeFactory::themeList(int keyAccount) const
{
    return m_themeList.filter(keyAccount, true);
}

QStringList PxThemeFactory::themeNames() const
{
    return m_themeList.idList();
}

bool PxThemeFactory::contains(const QString &id) const
{
    return m_themeList.contains(id);
}

PxTheme PxThemeFactory::findTheme(const QString &id) const
{
    return m_themeList.findTheme(id);
}

PxThemeList PxThemeFactory::findThemes(const QStringList &ids) const
{
    PxThemeList themes;
    for (const QString &id : ids) {
        const auto found = m_themeOfId.constFind(id);
        if (found != m_themeOfId.constEnd())
            themes.append(*found);
    }
    return themes;
}

PxThemeList PxThemeFactory::findThemes(const QString &ids) const
{
    return findThemes(ids.split(QLatin1Char(','), Qt::SkipEmptyParts));
}

PxThemeList PxThemeFactory::findThemesWhichAcceptNormalBackgrounds() const
{
    return m_normalBackgroundThemes;
}

PxThemeList PxThemeFactory::findThemesWhichAcceptNormalLayouts() const
{
    return m_normalLayoutThemes;
}

void PxThemeFactory::init()
{
    QDir directory = PxDirectoryConfig::instance()->lumoThemesDirectory(false);
    PxMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, Q_FUNC_INFO).debug()
        << QStringLiteral("PxThemeFactory::init() directory: %1").arg(directory.absolutePath());
    m_themeList = loadThemeList(directory);

    const auto normal = std::find_if(m_themeList.constBegin(), m_themeList.constEnd(),
                                     [](const PxTheme &theme) { return theme.isDefaultTheme(); });
    if (normal != m_themeList.constEnd())
        m_defaultTheme = *normal;
    if (!m_defaultTheme.isValid())
        m_defaultTheme = m_themeList.value(0, PxTheme::voidTheme());
}

PxThemeList PxThemeFactory::loadThemeList(QDir &directory)
{
    PxThemeList themes;
    PxThemeImages images;
    // Patterns ignore the case, and a file that matches both is listed once.
    const QFileInfoList files = directory.entryInfoList(
        {QStringLiteral("*.XML"), QStringLiteral("*.xml")}, QDir::Files, QDir::Unsorted);
    PxUndecodableNames::warn(directory.absolutePath());
    for (const QFileInfo &file : files) {
        QString error;
        const QDomElement root = PxXMLLoader::loadDocumentElement(file, &error);
        if (root.isNull()) {
            PxMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, Q_FUNC_INFO).warning().noquote()
                << QStringLiteral("PxThemeFactory::loadThemeList Could not open config file: %2/%1")
                       .arg(file.absoluteFilePath(), QDir::currentPath());
            pxDebug().noquote() << "PxThemeFactory::loadThemeList the reason:" << error;
            continue;
        }
        if (root.tagName().toLower() != QLatin1String("themes"))
            continue;
        PxMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, Q_FUNC_INFO).debug()
            << "PxThemeFactory::loadThemeList()" << root.childNodes().count();
        int themesOfFile = 0;
        for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (++themesOfFile > maximumThemes) {
                pxWarning() << "PxThemeFactory::loadThemeList used are the first" << maximumThemes
                            << "themes of" << file.absoluteFilePath();
                break;
            }
            const PxTheme theme = readTheme(node.toElement(), images);
            themes.append(theme);
            m_themeOfId.insert(theme.id(), theme);
            if (theme.canUseNormalBackgrounds() || theme.isDefaultTheme())
                m_normalBackgroundThemes.append(theme);
            if (theme.canUseNormalLayouts() || theme.isDefaultTheme())
                m_normalLayoutThemes.append(theme);
        }
    }
    m_normalBackgroundThemes.normalize();
    m_normalLayoutThemes.normalize();
    return themes;
}
