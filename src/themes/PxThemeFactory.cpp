#include "themes/PxThemeFactory.h"

#include "values/PxJigType.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxListParts.h>
#include <PxXMLLoader.h>
#include <PxXMLParser.h>

#include <QDebug>
#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

/** Null for a file that is missing, no regular file or no image. */
QImage readImage(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return QImage();
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.read();
}

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

QMap<PxProductTypeEnum, QPair<QImage, QRect>> readLogos(const QDomElement &logos)
{
    QMap<PxProductTypeEnum, QPair<QImage, QRect>> logoOfType;
    for (QDomNode node = logos.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement logo = node.toElement();
        const QString fileName =
            PxXMLParser::attribute(logo, QStringLiteral("filename"), QString(), true).toLower();
        const QImage image = readImage(PxDirectoryConfig::instance()->resource(fileName, false));
        const PxProductType type(
            PxXMLParser::attribute(logo, QStringLiteral("booktype"), QString(), true).toUpper());
        logoOfType.insert(type.type(), qMakePair(image, PxXMLParser::readRect(logo.attributes())));
    }
    return logoOfType;
}

PxDefaultThematicCategories readDefaultCategories(const QDomElement &defaultCategories)
{
    static const struct
    {
        QString attribute;
        PxJigTypeEnum jigType;
    } rows[] = {
        {QStringLiteral("background"), PxJigTypeBackground},
        {QStringLiteral("clipart"), PxJigTypeClipart},
        {QStringLiteral("fading"), PxJigTypePassepartout},
        {QStringLiteral("content"), PxJigTypeContent},
        {QStringLiteral("frame"), PxJigTypeFrame},
        {QStringLiteral("layout"), PxJigTypeLayout},
    };
    PxDefaultThematicCategories categories;
    for (const auto &row : rows)
        categories.insert(row.jigType,
                          PxThematicCategory(PxXMLParser::attribute(defaultCategories,
                                                                    row.attribute, QString(), true),
                                             QString()));
    return categories;
}

QString readDescription(const QDomElement &description)
{
    return description.isNull() ? QStringLiteral("unbekannt") : description.text();
}

PxTheme readTheme(const QDomElement &theme)
{
    const QString use = QStringLiteral("use");
    const QString id =
        PxXMLParser::attribute(theme, QStringLiteral("id"), QStringLiteral("unbekannt"), true)
            .toLower();
    const PxProductGroup productGroup(
        PxXMLParser::attribute(theme, QStringLiteral("producttype"), QString(), true));
    // Without an expiry date a theme has always been expired: it is offered to nobody.
    const QDateTime expiry = PxXMLParser::dateTimeAttribute(theme, QStringLiteral("expiry"),
                                                            QStringLiteral("197612302359"));
    const QImage thumbnail = readImage(
        PxXMLParser::attribute(theme, QStringLiteral("thumbnail"), QString(), true).toLower());
    const QDomElement content = theme.firstChildElement(QStringLiteral("content"));
    return PxTheme(
        id, productGroup, readDescription(theme.firstChildElement(QStringLiteral("description"))),
        expiry, thumbnail, readKeyAccounts(theme.firstChildElement(QStringLiteral("keyaccounts"))),
        readLogos(theme.firstChildElement(QStringLiteral("logos"))),
        PxXMLParser::boolAttribute(theme.firstChildElement(QStringLiteral("spinetext")), use,
                                   false),
        PxXMLParser::boolAttribute(content, QStringLiteral("movable"), false),
        PxXMLParser::boolAttribute(content, QStringLiteral("normalBackgrounds"), true),
        readDefaultCategories(theme.firstChildElement(QStringLiteral("defaultcategories"))),
        PxXMLParser::boolAttribute(theme.firstChildElement(QStringLiteral("spinelogo")), use, true),
        readProducts(theme.firstChildElement(QStringLiteral("products"))));
}

} // namespace

PxThemeFactory *PxThemeFactory::instance()
{
    static QAtomicPointer<PxThemeFactory> ourInstance;
    static QMutex ourMutex;
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
    qDebug()
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
    // One listing for both patterns: whether they match in any case is up to the platform, and a
    // file that matches both is listed once.
    const QFileInfoList files = directory.entryInfoList(
        {QStringLiteral("*.XML"), QStringLiteral("*.xml")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        QString error;
        const QDomElement root = PxXMLLoader::loadDocumentElement(file, &error);
        if (root.isNull()) {
            qWarning().noquote()
                << QStringLiteral("PxThemeFactory::loadThemeList Could not open config file: %2/%1")
                       .arg(file.absoluteFilePath(), QDir::currentPath());
            qDebug().noquote() << error; // the reason, for the author of the file
            continue;
        }
        if (root.tagName().toLower() != QLatin1String("themes"))
            continue;
        qDebug() << "PxThemeFactory::loadThemeList()" << root.childNodes().count();
        for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const PxTheme theme = readTheme(node.toElement());
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
