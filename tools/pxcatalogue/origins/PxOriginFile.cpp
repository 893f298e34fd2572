#include "origins/PxOriginFile.h"

#include "drawing/PxProductFile.h"
#include "format/PxFormat.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxShownProduct.h"

#include <PxDirectoryConfig.h>
#include <PxXMLLoader.h>

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace {

using Kind = PxOrigin::Kind;

QString resource(const QString &name)
{
    return PxDirectoryConfig::instance()->resource(name, false);
}

/** As resource(), whatever directory the command line names instead. */
QString inCatalogue(const QString &name)
{
    return resource(name + "/."); // under which nothing else is set
}

/** "themes/x.xml" for a file in the directory of the catalogue with this name, else its path. */
QString shownPath(const QString &directory, const QString &name, const QString &file)
{
    return QDir::cleanPath(directory) == QDir::cleanPath(inCatalogue(name))
               ? name + '/' + file
               : directory + '/' + file;
}

PxKeptFiles::File read(const QString &path)
{
    return std::make_shared<const PxCheckedFile>(path);
}

bool isThemeWith(const QString &id, const QString &idInFile)
{
    return idInFile.toLower() == id;
}

/** Whether the library finds a theme in a file, which it reads like this. */
bool hasTheme(const QFileInfo &file, const QString &id)
{
    const QDomElement root = PxXMLLoader::loadDocumentElement(file);
    if (root.tagName().toLower() != QLatin1String("themes"))
        return false;
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (isThemeWith(id, e.attribute("id", "unbekannt")))
            return true;
    }
    return false;
}

} // namespace

PxOriginFile::PxOriginFile(Kind kind, PxFileKind format, const PxKeptFiles::File &source,
                           const QString &path)
    : m_kind(kind)
    , m_format(format)
    , m_path(path)
    , m_source(source)
{}

PxOriginFile PxOriginFile::product(const QString &name, const PxKeptFiles &kept)
{
    if (name.isEmpty())
        return {};
    const QString kind = name.section('/', 0, -2);
    const QString file = name.section('/', -1);
    const QString directory = resource(kind);
    PxOriginFile product(Kind::File, PxFileKind::Product, kept.file(QDir(directory).filePath(file)),
                         shownPath(directory, kind, file));
    if (product.root())
        product.m_element = product.root()->firstChild("product");
    return product;
}

PxOriginFile PxOriginFile::userDefaults(const QString &productName)
{
    const QString directory = PxDirectoryConfig::instance()->userDefaultsPath();
    const QString name = productName + ".xml";
    const QString path = QDir::cleanPath(directory + '/' + name);
    if (!path.startsWith(QDir::cleanPath(directory) + '/'))
        return {}; // the library does not leave the directory either
    PxOriginFile file(Kind::UserDefaults, PxFileKind::UserDefaults, read(path),
                      shownPath(directory, "defaults", name));
    // Nothing is read from a file with anything before its document element.
    if (file.root() && file.m_source->document().firstChild().isElement())
        file.m_element = file.root()->firstChild("defaults");
    return file;
}

PxOriginFile PxOriginFile::theme(const QString &id)
{
    if (id.isEmpty())
        return {};
    const QDir directory = PxDirectoryConfig::instance()->lumoThemesDirectory(false);
    for (const QFileInfo &info :
         directory.entryInfoList({"*.XML", "*.xml"}, QDir::Files, QDir::Unsorted)) {
        if (!hasTheme(info, id))
            continue;
        PxOriginFile file(Kind::Theme, PxFileKind::Theme, read(info.absoluteFilePath()),
                          shownPath(directory.absolutePath(), "themes", info.fileName()));
        if (!file.root())
            return file;
        for (const PxSourceElement *theme : file.root()->children) {
            const bool hasId = theme->attribute("id");
            if (!file.m_element && isThemeWith(id, hasId ? theme->value("id") : "unbekannt"))
                file.m_element = theme;
        }
        return file;
    }
    return {};
}

/** The one large file that is the same for all products, so that it is read once. */
struct PxOriginFile::ProductTypes
{
    PxOriginFile file{Kind::ProductTypes, PxFileKind::ProductTypes,
                      read(resource("producttypes.xml")), "producttypes.xml"};
    QHash<int, QVector<const PxSourceElement *>> rowsOfCode;

    ProductTypes()
    {
        if (!file.root())
            return;
        for (const PxSourceElement *row : file.root()->childrenNamed("producttype"))
            rowsOfCode[row->number("code")].append(row);
    }
};

PxOriginFile PxOriginFile::productType(const PxProductType &type)
{
    static const auto &ourTypes = *new ProductTypes;
    PxOriginFile file = ourTypes.file;
    for (const PxSourceElement *row : ourTypes.rowsOfCode.value(int(type.type()))) {
        // A row that is left out may have the same code, but not all of this.
        if (!file.m_element && row->value("name").trimmed() == type.productName() &&
            PxFormat::isKeyword(PxKeywordSet::ProductClass, row->value("class")))
            file.m_element = row;
    }
    return file;
}

QVector<const PxSourceElement *> PxOriginFile::entries(const char *list, const char *name) const
{
    const PxSourceElement *parent = m_element ? m_element->firstChild(list) : nullptr;
    return parent ? parent->childrenNamed(name) : QVector<const PxSourceElement *>();
}

PxPlace PxOriginFile::place(const PxSourceRange &range) const
{
    PxPlace place = m_source->place(range);
    place.path = m_path;
    return place;
}

const PxElementRow *PxOriginFile::rowOf(const PxSourceElement &element) const
{
    if (!element.parent)
        return &PxFormat::root(m_format);
    const PxElementRow *parent = rowOf(*element.parent);
    return parent ? PxFormat::child(*parent, element.name) : nullptr;
}

PxOriginFiles::PxOriginFiles(const PxShownProduct &shown, const PxKeptFiles &kept)
    : product(PxOriginFile::product(shown.file, kept))
    , theme(PxOriginFile::theme(shown.themeId))
    , type(PxOriginFile::productType(shown.type))
{
    if (product.element())
        userDefaults = PxOriginFile::userDefaults(product.element()->value("name"));
    const PxProductType old = shown.product->legacyProduct();
    if (PxCatalogueProducts::isLegacy(old))
        replaced = PxOriginFile::product(PxProductFile::pathOf(old, true), kept);
    const PxProductType later =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(shown.type);
    if (PxCatalogueProducts::isCurrent(later))
        successor = PxOriginFile::product(PxProductFile::pathOf(later, false), kept);
}
