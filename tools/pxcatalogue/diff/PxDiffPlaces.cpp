#include "diff/PxDiffPlaces.h"

#include "check/source/PxCheckedFile.h"
#include "diff/PxDiff.h"
#include "diff/PxMatchedRows.h"
#include "origins/PxOrigins.h"
#include "report/PxProductReport.h"
#include "report/PxShownProduct.h"

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QJsonDocument>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using Element = const PxSourceElement *;

/** Values that only an export has, and those in whose place a report has them. */
constexpr struct
{
    const char *exported;
    const char *shown;
} pointerRows[] = {
    {"/pages/offered", "/pages/pageCounts"},
    {"/pages/list", "/pages/listEntries"},
    {"/pages/sides", "/pages/horizontalPages"},
    {"/surroundings/*/places", "/surroundings/*/pages"},
};

/** In which columns a row of a table is the same in an export and in a report. */
constexpr struct
{
    const char *section;
    const char *columns;
} tableRows[] = {
    {"pageKinds", "pageType alignment"},
    {"surroundings", "type rect paintOnTop hasBindingShade image"},
    {"barcodes", "rect isCountedFromBack image"},
    {"templates", "pageType alignment"},
    {"extraPages", "pages type layer file"},
    {"contentRedirects", "page target"},
    {"rotationRedirects", "page target angleInvert"},
};

/** What the members of a theme are written in: attributes of the theme, or elements. */
constexpr struct
{
    const char *member;
    const char *name;
} themeRows[] = {
    {"description", "description"}, {"group", "producttype"},        {"expiryDay", "expiry"},
    {"keyAccounts", "keyaccounts"}, {"allowedProducts", "products"},
};

QString textOf(PxPlace place, const QString &path)
{
    place.path = path;
    return PxOrigin::text(place);
}

/** Finds the places of the values of one product. */
class ProductPlaces
{
public:
    ProductPlaces(const PxProductTypeConfigRegistry *registry, const QString &name,
                  const QByteArray &exported)
        : m_shown(PxProductReport::shown(registry, PxProductType(name), 0, QString()))
        , m_report(PxProductReport::of(m_shown).json())
        , m_exported(QJsonDocument::fromJson(exported).object())
        , m_origins(m_shown)
        , m_file(PxDirectoryConfig::instance()->resource(m_shown.file, false))
    {}

    QString of(const PxChange &change)
    {
        const QString pattern = change.key->pointer;
        const bool isGone = change.after.isNull() || change.after == QString();
        if (isGone)
            return QString();
        if (change.dependsOnPageCount() && pattern.startsWith("/spine/"))
            return placeOfSpine(change);
        const QString pointer = shownPointer(change);
        return pattern.endsWith('*') ? placeOfRow(pattern, pointer) : placeOf(pointer, 0);
    }

private:
    /** Of two spines for a page count the later one is used. */
    QString placeOfSpine(const PxChange &change)
    {
        const QString attribute = QString(change.key->pointer).section('/', -1).toLower();
        if (m_spines.isEmpty())
            findSpines();
        const Element spine = m_spines.value(change.firstPageCount);
        if (!spine)
            return QString();
        const PxSourceAttribute *found = spine->attribute(attribute.toUtf8().constData());
        return textOf(m_file.place(found ? found->nameRange : spine->nameRange), m_shown.file);
    }

    void findSpines()
    {
        const Element product = m_file.root() ? m_file.root()->firstChild("product") : nullptr;
        const Element spines = product ? product->firstChild("spines") : nullptr;
        for (Element spine : spines ? spines->childrenNamed("spine") : QVector<Element>())
            m_spines.insert(spine->number("pages"), spine);
    }

    /** The pointer to the same value in a report; empty if it is not there. */
    QString shownPointer(const PxChange &change)
    {
        QString pointer = change.key->pointer;
        for (const auto &row : pointerRows) {
            if (pointer == row.exported)
                pointer = row.shown;
        }
        if (!pointer.contains('*'))
            return pointer;
        const QString section = pointer.section('/', 1, 1);
        const int index = change.pointer.section('/', 2, 2).toInt();
        const int shown = rowsOf(section).value(index, -1);
        return shown < 0 ? QString() : pointer.replace('*', QString::number(shown));
    }

    /** The rows of a table in the report, by those in the export. */
    const QHash<int, int> &rowsOf(const QString &section)
    {
        const auto known = m_rows.constFind(section);
        if (known != m_rows.constEnd())
            return *known;
        QHash<int, int> &rows = m_rows[section];
        for (const auto &row : tableRows) {
            if (section != row.section)
                continue;
            for (const auto &[exported, shown] :
                 PxMatchedRows::of(m_exported[section].toArray(), m_report[section].toArray(),
                                   {QString(row.columns).split(' ')}))
                rows.insert(exported, shown);
        }
        return rows;
    }

    /** Of a new row the place of the first of its values that a file says. */
    QString placeOfRow(const QString &pattern, const QString &pointer) const
    {
        for (const PxDiffKey &key : PxDiffKeys::ofProducts()) {
            const QString value = key.pointer;
            if (!value.startsWith(pattern + '/'))
                continue;
            const PxOrigin origin = m_origins.at(pointer + '/' + value.section('/', -1));
            if (origin.kind == PxOrigin::Kind::File && origin.place.line > 0)
                return PxOrigin::text(origin.place);
        }
        return QString();
    }

    /**
     * A computed value has the place of the first input that has one. None has what no file says,
     * nor a sum: nobody knows here which of its parts changed.
     */
    QString placeOf(const QString &pointer, int depth) const
    {
        constexpr int deepest = 5;
        if (pointer.isEmpty() || depth > deepest)
            return QString();
        const PxOrigin origin = m_origins.at(pointer);
        const auto terms = std::count_if(origin.formula.begin(), origin.formula.end(),
                                         [](const PxOrigin::Part &part) { return part.isPlace(); });
        if (origin.kind == PxOrigin::Kind::Default || terms > 1)
            return QString();
        if (origin.place.line > 0)
            return PxOrigin::text(origin.place);
        for (const PxOrigin::Part &from : origin.from) {
            const QString place =
                from.isPlace() ? PxOrigin::text(from.place) : placeOf(from.text, depth + 1);
            if (!place.isEmpty())
                return place;
        }
        return QString();
    }

    PxShownProduct m_shown;
    QJsonObject m_report;
    QJsonObject m_exported;
    PxOrigins m_origins;
    PxCheckedFile m_file;
    QHash<int, Element> m_spines; // by page count
    QHash<QString, QHash<int, int>> m_rows;
};

/** Finds the places of themes whose id no other one has, reading each file once. */
class ThemePlaces
{
public:
    ThemePlaces()
    {
        const QDir directory = PxDirectoryConfig::instance()->lumoThemesDirectory(false);
        for (const QFileInfo &info :
             directory.entryInfoList({"*.XML", "*.xml"}, QDir::Files, QDir::Unsorted)) {
            m_files.push_back(std::make_unique<PxCheckedFile>(info.absoluteFilePath()));
            const PxCheckedFile &file = *m_files.back();
            const QString path = "themes/" + info.fileName();
            const bool hasThemes = file.root() && file.root()->name.toLower() == "themes";
            for (Element theme : hasThemes ? file.root()->children : QVector<Element>()) {
                const bool hasId = theme->attribute("id");
                m_themes[hasId ? theme->value("id").toLower() : "unbekannt"].append(
                    {&file, theme, path});
            }
        }
    }

    QString of(const QString &id, const QString &member) const
    {
        const QVector<Theme> themes = m_themes.value(id);
        if (themes.size() != 1)
            return QString();
        const Theme &theme = themes.constFirst();
        for (const auto &row : themeRows) {
            if (member != row.member)
                continue;
            const PxSourceAttribute *attribute = theme.element->attribute(row.name);
            const Element child = theme.element->firstChild(row.name);
            return textOf(theme.file->place(attribute ? attribute->nameRange
                                            : child   ? child->nameRange
                                                      : theme.element->nameRange),
                          theme.path);
        }
        return QString();
    }

private:
    struct Theme
    {
        const PxCheckedFile *file = nullptr;
        Element element = nullptr;
        QString path = {};
    };

    std::vector<std::unique_ptr<PxCheckedFile>> m_files;
    QHash<QString, QVector<Theme>> m_themes;
};

void addPlaces(PxDiffOfKind *products, const PxExportedCatalogue::Objects &exported,
               const PxProductTypeConfigRegistry *registry)
{
    for (PxChangedObject &product : products->changed) {
        ProductPlaces places(registry, product.name, exported[{product.name, 0}].line);
        for (PxChange &change : product.changes)
            change.place = places.of(change);
    }
}

} // namespace

void PxDiffPlaces::addTo(PxDiff *diff, const PxExportedCatalogue &newCatalogue)
{
    addPlaces(&diff->products, newCatalogue.products(), PxProductTypeConfigRegistry::instance());
    addPlaces(&diff->legacyProducts, newCatalogue.legacyProducts(),
              PxProductTypeConfigRegistry::legacyInstance());
    if (diff->themes.changed.isEmpty())
        return;
    const ThemePlaces places;
    for (PxChangedObject &theme : diff->themes.changed) {
        for (PxChange &change : theme.changes)
            change.place = places.of(theme.name, change.pointer);
    }
}
