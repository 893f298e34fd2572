#include "diff/PxDiffPlaces.h"

#include "check/source/PxCheckedFile.h"
#include "diff/PxComparedProduct.h"
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
                  const QJsonObject &exported, const QString &theme = QString())
        : m_shown(PxProductReport::shown(registry, PxProductType(name), 0, theme))
        , m_report(PxProductReport::of(m_shown).json())
        , m_exported(exported)
        , m_origins(m_shown)
        , m_file(PxDirectoryConfig::instance()->resource(m_shown.file, false))
    {}

    QString of(const PxChange &change)
    {
        const QString pattern = change.key->pointer;
        const bool isGone = change.after.isNull() || change.after == QString();
        if (isGone)
            return QString();
        if (pattern.startsWith("/themeTemplates/"))
            return placeInTheme(change);
        if (pattern == "/pages/offered")
            return placeOfSpine(firstGained(change), "pages");
        if (change.dependsOnPageCount() && pattern.startsWith("/spine/"))
            return placeOfSpine(change.firstPageCount, pattern.section('/', -1).toLower());
        const QString pointer = shownPointer(pattern, change.pointer);
        return placeIn(pattern, pointer, change);
    }

private:
    QString placeIn(const QString &pattern, const QString &pointer, const PxChange &change) const
    {
        const QString place = pattern.endsWith('*') ? QString() : placeOf(pointer, change);
        const bool isOfRow = place.isEmpty() && pattern.contains('*');
        return isOfRow ? placeOfRow(pattern.section('/', 0, 2), pointer.section('/', 0, 2)) : place;
    }

    /** A report tells the templates of one theme at a time, as those of the product. */
    QString placeInTheme(const PxChange &change)
    {
        const int row = change.pointer.section('/', 2, 2).toInt();
        const QJsonArray rows = m_exported["themeTemplates"].toArray();
        const QString theme = rows[row].toObject()["theme"].toString();
        ThemedPlaces &places = m_themes[theme];
        if (!places) {
            QJsonArray ofTheme;
            for (const auto &other : rows)
                ofTheme.append(other.toObject()["theme"] == theme ? QJsonValue(other)
                                                                  : QJsonValue());
            const QJsonObject themed{{"templates", ofTheme}};
            places = std::make_shared<ProductPlaces>(m_shown.registry, m_shown.type.productName(),
                                                     themed, theme);
        }
        const QString shownPattern =
            QString(change.key->pointer).replace("/themeTemplates", "/templates");
        const QString pointer = places->shownPointer(shownPattern, change.pointer);
        return places->placeIn(shownPattern, pointer, change);
    }

    /** Of two spines for a page count the later one is used. */
    QString placeOfSpine(int pageCount, const QString &attribute)
    {
        if (m_spines.isEmpty())
            findSpines();
        const Element spine = m_spines.value(pageCount);
        if (!spine)
            return QString();
        const PxSourceAttribute *found = spine->attribute(attribute.toUtf8().constData());
        return textOf(m_file.place(found ? found->nameRange : spine->nameRange), m_shown.file);
    }

    /** The smallest of the page counts that are new; 0 if there is none. */
    static int firstGained(const PxChange &change)
    {
        const QList<int> before = PxComparedProduct::numbersOf(change.before);
        for (const int pageCount : PxComparedProduct::numbersOf(change.after)) {
            if (!std::binary_search(before.begin(), before.end(), pageCount))
                return pageCount;
        }
        return 0;
    }

    void findSpines()
    {
        const Element product = m_file.root() ? m_file.root()->firstChild("product") : nullptr;
        const Element spines = product ? product->firstChild("spines") : nullptr;
        for (Element spine : spines ? spines->childrenNamed("spine") : QVector<Element>())
            m_spines.insert(spine->number("pages"), spine);
    }

    /** The pointer to the same value in a report; empty if it is not there. */
    QString shownPointer(QString pointer, const QString &exported)
    {
        for (const auto &row : pointerRows) {
            if (pointer == row.exported)
                pointer = row.shown;
        }
        if (!pointer.contains('*'))
            return pointer;
        const QString section = pointer.section('/', 1, 1);
        const int index = exported.section('/', 2, 2).toInt();
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

    /** Of a row the place of the first of its values that a file says. */
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
     * A computed value has the place of its only input. None has what follows from several: nobody
     * knows here which of them changed. Of a size one side may have changed, which has its place.
     */
    QString placeOf(const QString &pointer, const PxChange &change) const
    {
        QStringList sides;
        for (const QString &side : change.after.toObject().keys()) {
            if (change.after[side] != change.before[side])
                sides.append('/' + side);
        }
        QStringList places;
        addPlaces(sides.size() == 1 ? pointer + sides.constFirst() : pointer, 0, &places);
        places.removeDuplicates();
        return places.size() == 1 ? places.constFirst() : QString();
    }

    void addPlaces(const QString &pointer, int depth, QStringList *places) const
    {
        constexpr int deepest = 5;
        if (pointer.isEmpty() || depth > deepest)
            return;
        const PxOrigin origin = m_origins.at(pointer);
        if (origin.kind == PxOrigin::Kind::Default)
            return;
        if (origin.kind != PxOrigin::Kind::Computed && origin.place.line > 0) {
            places->append(PxOrigin::text(origin.place));
            return;
        }
        for (const PxOrigin::Part &from : origin.from) {
            if (from.isPlace())
                places->append(PxOrigin::text(from.place));
            else
                addPlaces(from.text, depth + 1, places);
        }
    }

    using ThemedPlaces = std::shared_ptr<ProductPlaces>;

    PxShownProduct m_shown;
    QJsonObject m_report;
    QJsonObject m_exported;
    PxOrigins m_origins;
    PxCheckedFile m_file;
    QHash<int, Element> m_spines; // by page count
    QHash<QString, QHash<int, int>> m_rows;
    QHash<QString, ThemedPlaces> m_themes;
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
        const QJsonDocument line = QJsonDocument::fromJson(exported[{product.name, 0}].line);
        ProductPlaces places(registry, product.name, line.object());
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
