#include "export/PxExportedProduct.h"

#include "export/PxPageCountTable.h"
#include "export/PxPageRuns.h"
#include "format/PxCatalogueKeywords.h"
#include "report/PxNumberRanges.h"
#include "report/PxProductReport.h"
#include "report/PxShownProduct.h"
#include "writing/PxJsonLine.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {

/** No surrounding is pinned to it. */
constexpr int anyPage = std::numeric_limits<int>::max();

QString side(PxPageAlignment alignment)
{
    return keywordsOf(alignment, EnumHelper::globalMapPageAlignmentString).join(", ");
}

/** Makes the product, section by section. */
class Exported
{
public:
    Exported(const PxProductTypeConfigRegistry *registry, const PxProductType &type)
        : m_shown{registry, type, {}}
        , m_runs(product())
    {
        addKinds();
        m_shown.redirectedPages = qMin(printedPages(), PxExportedProduct::maximumPages);
        m_shown.pageCount = pageCounts().value(0, 1);
        addSurroundings();
        addBarcodes();
        m_report = PxProductReport::of(m_shown);
        changePages();
        changeSurroundings();
        addThemeTemplates();
        m_report.addField("production", {"numbering", "", numbering()});
    }

    void addTo(PxJsonLine *line)
    {
        const PxPageCountTable table(m_shown, &m_report);
        m_report.addTo(line);
        table.addTo(line);
    }

private:
    const PxProductTypeDescription &product() const { return *m_shown.product; }
    const QList<int> &pageCounts() const { return m_shown.offeredPageCounts; }
    /** With the largest page count. */
    int printedPages() const
    {
        return m_runs.pageCount(pageCounts().isEmpty() ? 1 : pageCounts().constLast());
    }

    void addKinds();
    void addSurroundings();
    void addSurroundingsOf(int page);
    void addPlace(const PxSurroundingDescription &surrounding, const QJsonObject &place);
    void addBarcodes();
    void changePages();
    void changeSurroundings();
    void addThemeTemplates();
    QString numbering() const;
    QString pagesWithContent() const;

    PxShownProduct m_shown;
    PxPageRuns m_runs;
    QVector<PxSurroundingDescription> m_surroundingOfKind;
    QVector<QJsonArray> m_places; // of the surroundings
    PxReport m_report;
};

/** A longer product has all kinds of a shorter one, unless it begins on the other side. */
void Exported::addKinds()
{
    const QList<int> pageCounts = this->pageCounts().isEmpty() ? QList<int>{1} : this->pageCounts();
    const auto add = [this, &pageCounts](auto isWanted) {
        const auto found = std::find_if(pageCounts.begin(), pageCounts.end(), isWanted);
        if (found != pageCounts.end())
            m_runs.addKindsTo(&m_shown.kinds, *found);
    };
    add([](int pageCount) { return pageCount > 1 && pageCount % 2 == 0; });
    add([](int pageCount) { return pageCount > 1 && pageCount % 2 != 0; });
    add([](int pageCount) { return pageCount == 1; });
    m_shown.pagesOfKind.resize(m_shown.kinds.size());
}

void Exported::addPlace(const PxSurroundingDescription &surrounding, const QJsonObject &place)
{
    const int index = m_shown.indexOf(surrounding);
    m_places.resize(m_shown.surroundings.size());
    m_places[index].append(place);
}

/** A surrounding belongs to kinds of pages, and to single pages that another one would have. */
void Exported::addSurroundings()
{
    for (const PxPageContext &kind : qAsConst(m_shown.kinds)) {
        m_surroundingOfKind.append(product().findSurrounding(PxSurroundingKey(kind, anyPage)));
        if (m_surroundingOfKind.constLast().isValid())
            addPlace(m_surroundingOfKind.constLast(), {{"pageType", keywordOf(kind.pageType())},
                                                       {"alignment", side(kind.alignment())},
                                                       {"page", QJsonValue()}});
    }
    const int pages = qMin(printedPages(), PxExportedProduct::maximumPages);
    for (int page = 0; page < pages; ++page)
        addSurroundingsOf(page);
}

void Exported::addSurroundingsOf(int page)
{
    const PxPageAlignment alignment = product().pageAlignment(page);
    QVector<QPair<PxPageType, PxSurroundingDescription>> found;
    int kindsOfSide = 0;
    for (int i = 0; i < m_shown.kinds.size(); ++i) {
        const PxPageContext &kind = m_shown.kinds[i];
        if (kind.alignment() != alignment)
            continue;
        ++kindsOfSide;
        const auto surrounding = product().findSurrounding(PxSurroundingKey(kind, page));
        if (surrounding != m_surroundingOfKind[i])
            found.append({kind.pageType(), surrounding});
    }
    const bool isOfAll =
        found.size() == kindsOfSide &&
        std::all_of(found.begin(), found.end(), [&found](const auto &surroundingOfType) {
            return surroundingOfType.second == found.constFirst().second;
        });
    if (isOfAll && !found.isEmpty())
        found.resize(1);
    for (const auto &[pageType, surrounding] : qAsConst(found))
        addPlace(surrounding, {{"pageType", isOfAll ? QJsonValue() : keywordOf(pageType)},
                               {"alignment", side(alignment)},
                               {"page", page}});
}

/** Where a barcode is says the barcode itself: its page, counted from the front or the back. */
void Exported::addBarcodes()
{
    QSet<QPair<bool, int>> known;
    const auto add = [&](int pageCount) {
        const int pages = m_runs.pageCount(pageCount);
        for (int page = 0; page < pages; ++page) {
            const PxBarcode barcode = product().barcodeOnPage(page, pages);
            const auto place = qMakePair(barcode.reverseOrder(), barcode.pageNr());
            if (barcode.isValid() && !known.contains(place)) {
                known.insert(place);
                m_shown.barcodes.append({barcode, barcode.pageNr()});
            }
        }
    };
    add(pageCounts().isEmpty() ? 1 : pageCounts().constLast());
    if (pageCounts().size() > 1)
        add(pageCounts().constFirst()); // there the same page may have another one
}

void Exported::changePages()
{
    const QJsonObject sides{{"first", side(product().pageAlignment(0))},
                            {"second", side(product().pageAlignment(1))},
                            {"even", side(product().pageAlignment(2))},
                            {"odd", side(product().pageAlignment(3))}};
    m_report.addField("pages", {"offered", "", PxNumberRanges::text(pageCounts())});
    m_report.addField("pages", {"list", "", m_runs.toJson()});
    m_report.addField("pages", {"sides", "", sides});
    m_report.addField("pages", {"pagesWithContent", "", pagesWithContent()});
}

QString Exported::pagesWithContent() const
{
    QList<int> pages;
    const int count = printedPages();
    for (int page = 0; page < count; ++page) {
        if (product().contentAllowedOnPage(page))
            pages.append(page);
    }
    return pages.size() == count ? "all" : PxNumberRanges::text(pages);
}

void Exported::changeSurroundings()
{
    QVector<QJsonValue> places;
    for (const QJsonArray &placesOfOne : qAsConst(m_places))
        places.append(placesOfOne);
    m_report.addColumn("surroundings", {"places", ""}, places);
}

/** Those of the theme "normal", which other themes without their own have, are a table already. */
void Exported::addThemeTemplates()
{
    QVector<QJsonArray> rows;
    QStringList ids = product().themesWithDefaultTemplates();
    ids.removeOne("normal");
    for (const PxTheme &known : PxThemeFactory::instance()->findThemes(ids)) {
        const QString theme = known.id();
        for (const PxPageContext &kind : qAsConst(m_shown.kinds)) {
            const auto own = [&](DefaultTemplateType type) {
                return product().findDefaultTemplate({theme, kind, type}, false, true);
            };
            const QString layout = own(DefaultTemplateTypeLayout);
            const QString background = own(DefaultTemplateTypeBackground);
            if (!layout.isEmpty() || !background.isEmpty())
                rows.append({theme, keywordOf(kind.pageType()), side(kind.alignment()), layout,
                             background});
        }
    }
    m_report.addTable("themeTemplates", "",
                      {
                          {"theme", ""},
                          {"pageType", ""},
                          {"alignment", ""},
                          {"layout", ""},
                          {"background", ""},
                      },
                      rows);
}

/** The numbers of production up to the one from which they count on. */
QString Exported::numbering() const
{
    const QList<int> numbers = product().productionNumberingList(printedPages());
    int last = numbers.size() - 1;
    while (last > 0 && qint64(numbers[last - 1]) + 1 == numbers[last])
        --last;
    QString text = PxNumberRanges::text(numbers.mid(0, last));
    if (!text.isEmpty())
        text += ", ";
    return text + QString::number(numbers[last]) + '-';
}

} // namespace

void PxExportedProduct::addTo(PxJsonLine *line, const PxProductTypeConfigRegistry *registry,
                              const PxProductType &type)
{
    Exported(registry, type).addTo(line);
}
