#include "diff/PxDiffPlaces.h"

#include "check/source/PxCheckedFile.h"
#include "diff/PxComparedProduct.h"
#include "diff/PxDiff.h"
#include "diff/PxMatchedRows.h"
#include "format/PxCatalogueKeywords.h"
#include "origins/PxOriginFile.h"
#include "origins/PxOrigins.h"
#include "origins/PxTemplateEntries.h"
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
                  const QJsonObject &exported)
        : m_shown(PxProductReport::shown(registry, PxProductType(name), 0, QString()))
        , m_report(PxProductReport::of(m_shown).json())
        , m_exported(exported)
        , m_files(m_shown)
        , m_origins(m_shown, m_files)
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
        return pattern.endsWith('*') ? placeOfRow(pattern, pointer) : placeOf(pointer, change);
    }

private:
    /** A report has the templates of one theme only. */
    QString placeInTheme(const PxChange &change)
    {
        const int index = change.pointer.section('/', 2, 2).toInt();
        const QJsonValue row = m_exported["themeTemplates"].toArray().at(index);
        const QString member = QString(change.key->pointer).section('/', -1);
        for (const QString &name :
             member == "*" ? QStringList{"layout", "background"} : QStringList{member}) {
            const QString place = placeOfTemplate(row, name);
            if (!place.isEmpty())
                return place;
        }
        return QString();
    }

    QString placeOfTemplate(const QJsonValue &row, const QString &name) const
    {
        const auto isOfRow = [&row](const PxPageContext &page) {
            return keywordOf(page.pageType()) == row["pageType"].toString() &&
                   keywordsOf(page.alignment(), EnumHelper::globalMapPageAlignmentString)
                           .join(", ") == row["alignment"].toString();
        };
        const auto page = std::find_if(m_shown.kinds.begin(), m_shown.kinds.end(), isOfRow);
        if (page == m_shown.kinds.end())
            return QString();
        const QString theme = row["theme"].toString();
        for (const auto &[file, entries] : {std::pair(&m_files.userDefaults, &m_userTemplates),
                                            std::pair(&m_files.product, &m_templates)}) {
            const Element entry = entries->find(theme, *page, name == "layout");
            const auto *attribute = entry ? entry->attribute(name.toLatin1().constData()) : nullptr;
            if (entry && !attribute)
                attribute = entry->attribute("templates");
            if (attribute)
                return PxOrigin::text(file->place(attribute->nameRange));
        }
        return QString();
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
        return PxOrigin::text(m_files.product.place(found ? found->nameRange : spine->nameRange));
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
        for (Element spine : m_files.product.entries("spines", "spine"))
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
            if (origin.kind != PxOrigin::Kind::Computed && origin.place.line > 0)
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
        const bool isInRow = QString(change.key->pointer).contains('*');
        QString next = sides.size() == 1 ? pointer + sides.constFirst() : pointer;
        constexpr int deepest = 5;
        for (int depth = 0; depth < deepest && !next.isEmpty(); ++depth) {
            const PxOrigin origin = m_origins.at(next);
            const bool isRead = origin.kind != PxOrigin::Kind::Computed;
            const bool isOnly = depth == 0 || !hasPlaces(origin);
            if (isRead || (isInRow && depth == 0 && origin.place.line > 0))
                return isOnly && origin.kind != PxOrigin::Kind::Default
                           ? PxOrigin::text(origin.place)
                           : QString();
            const QVector<PxOrigin::Part> inputs = inputsOf(origin);
            if (inputs.size() != 1)
                return QString();
            if (inputs.constFirst().isPlace())
                return PxOrigin::text(inputs.constFirst().place);
            next = inputs.constFirst().text;
        }
        return QString();
    }

    static bool hasPlaces(const PxOrigin &origin)
    {
        return std::any_of(origin.from.begin(), origin.from.end(),
                           [](const PxOrigin::Part &part) { return part.isPlace(); });
    }

    /** Page counts, whose changes are changes of their own, left out. */
    static QVector<PxOrigin::Part> inputsOf(const PxOrigin &origin)
    {
        QVector<PxOrigin::Part> inputs;
        for (const PxOrigin::Part &part : origin.from) {
            if (part.text != "/pages/printedPages" && part.text != "/pages/pageCount")
                inputs.append(part);
        }
        return inputs;
    }

    PxShownProduct m_shown;
    QJsonObject m_report;
    QJsonObject m_exported;
    PxOriginFiles m_files;
    PxOrigins m_origins;
    PxTemplateEntries m_userTemplates{m_files.userDefaults.element()};
    PxTemplateEntries m_templates{
        m_files.product.element() ? m_files.product.element()->firstChild("defaults") : nullptr};
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
