#include "PxMeasuredCatalogue.h"

#include "PxAllocations.h"

#include <PxXMLLoader.h>
#include <description/PxProductTypeDescriptionReader.h>
#include <themes/PxThemeFactory.h>

#include <QDomDocument>
#include <QFile>

namespace {

/** Stops the program if the condition is false: only correct results are measured. */
void require(bool isRight, const char *what)
{
    if (!isRight)
        qFatal("Wrong answer: %s.", what);
}

void parseWithQt(const QString &path)
{
    QFile file(path);
    QDomDocument document;
    require(file.open(QIODevice::ReadOnly) && document.setContent(file.readAll()), "setContent");
}

} // namespace

PxMeasuredCatalogue::PxMeasuredCatalogue(const QString &directory)
    : m_products(directory + QLatin1String("/products"))
    , m_themes(directory + QLatin1String("/themes"))
    , m_files(m_products.entryInfoList({QStringLiteral("*.xml")}, QDir::Files))
{
    const auto descriptions = read();
    require(descriptions.size() == m_files.size(), "the number of descriptions");
    for (const PxProductTypeDescription *description : descriptions)
        require(description->isValid() && description->bleedMarginNormal().horizontal() >= 20,
                "a description");
    qDeleteAll(descriptions);
    for (const QFileInfo &file : m_files)
        require(!PxXMLLoader::loadDocument(file).isNull(), "a document");
    QDir themes = m_themes;
    const PxTheme theme =
        PxThemeFactory().loadThemeList(themes).findTheme(QStringLiteral("theme-99"));
    require(theme.isValid() && !theme.isExpired() && !theme.keyAccounts().isEmpty(), "a theme");
}

void PxMeasuredCatalogue::readWithQt() const
{
    for (const QFileInfo &file : m_files)
        parseWithQt(file.filePath());
}

void PxMeasuredCatalogue::loadFiles() const
{
    for (const QFileInfo &file : m_files)
        require(!PxXMLLoader::loadDocument(file).isNull(), "a document");
}

void PxMeasuredCatalogue::readRegistry() const
{
    const auto descriptions = read();
    require(descriptions.size() == m_files.size(), "the number of descriptions");
    qDeleteAll(descriptions);
}

void PxMeasuredCatalogue::loadThemes() const
{
    PxThemeFactory factory;
    QDir directory = m_themes;
    require(factory.loadThemeList(directory).size() == 100, "the number of themes");
}

void PxMeasuredCatalogue::readThemesWithQt() const
{
    const QFileInfoList files = m_themes.entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        parseWithQt(file.filePath());
}

double PxMeasuredCatalogue::bytesPerDescription() const
{
    qDeleteAll(read()); // creates what exists once, such as keyword tables
    const std::size_t before = PxAllocations::bytesInUse();
    const auto descriptions = read();
    const std::size_t kept = PxAllocations::bytesInUse() - before;
    qDeleteAll(descriptions);
    return double(kept) / m_files.size();
}

double PxMeasuredCatalogue::allocationsPerFile() const
{
    const std::size_t before = PxAllocations::count();
    loadFiles();
    return double(PxAllocations::count() - before) / m_files.size();
}

QHash<PxProductType, PxProductTypeDescription *> PxMeasuredCatalogue::read() const
{
    return PxProductTypeDescriptionReader(m_products).readDir();
}
