#include "origins/PxOriginEntries.h"

#include "origins/PxTemplateEntries.h"
#include "report/PxReport.h"
#include "report/PxShownProduct.h"

#include <geometry/PxBarcodeList.h>

#include <QHash>

#include <algorithm>

namespace {

using Element = const PxSourceElement *;
using Elements = QVector<Element>;

struct PageRange
{
    Element element;
    int first;
    int last;
};

/** None of pages if the library drops the redirect. */
PageRange rangeOf(Element redirect)
{
    bool hasFirst = false;
    bool hasLast = false;
    const QString from = redirect->value("from");
    const int first = from.leftRef(from.indexOf('-')).toInt(&hasFirst);
    const int last = from.midRef(from.lastIndexOf('-') + 1).toInt(&hasLast);
    const bool isRead = hasFirst && hasLast && redirect->number("to", -1) >= 0;
    return isRead ? PageRange{redirect, first, last} : PageRange{redirect, 0, -1};
}

} // namespace

PxOriginEntries::PxOriginEntries(const PxShownProduct &shown, const PxReport &report,
                                 const PxOriginFiles &files)
    : m_product(files.product)
{
    const auto pages = [&report](const char *table) {
        QVector<int> numbers;
        for (const QJsonValue &page : report.column(table, "page").mid(0, maximumRows))
            numbers.append(page.toInt());
        return numbers;
    };
    addSpines(shown.pageCount);
    addSurroundings(shown);
    addBarcodes(pages("barcodes"), shown.pages.size());
    addTemplates(shown, files.userDefaults);
    addLogo(shown.type, files.theme);
    for (Element item : m_product.entries("extra_production_pages", "item").mid(0, maximumRows))
        add("item[row]", item);
    addContentRedirects(pages("contentRedirects"));
    addRotationRedirects(pages("rotationRedirects"));
}

PxOriginElement PxOriginEntries::find(const QByteArray &name, int row) const
{
    return m_entries.value(name).value(qMax(0, row));
}

void PxOriginEntries::add(const char *name, const PxSourceElement *element)
{
    m_entries[name].append({&m_product, element});
}

/** Of two entries for a page count the later one is used. */
void PxOriginEntries::addSpines(int pageCount)
{
    Element shown = nullptr;
    Element smallest = nullptr;
    for (Element spine : m_product.entries("spines", "spine")) {
        const int pages = spine->number("pages");
        if (pages == pageCount)
            shown = spine;
        if (!smallest || pages <= smallest->number("pages"))
            smallest = spine;
    }
    add("spine[shown]", shown);
    add("spine[smallest]", smallest);
}

void PxOriginEntries::addSurroundings(const PxShownProduct &shown)
{
    QVector<QPair<Element, PxSurroundingDescription>> general;
    QHash<int, QPair<int, Element>> pinned; // the first of each page, with its index
    QVector<int> indexOfGeneral;
    int index = 0;
    if (const PxSourceElement *product = m_product.element()) {
        for (Element list : product->childrenNamed("surroundings")) {
            for (Element element : list->childrenNamed("surrounding")) {
                const PxSurroundingDescription surrounding(element->dom);
                if (surrounding.pageNr() == -1) {
                    general.append({element, surrounding});
                    indexOfGeneral.append(index);
                } else if (!pinned.contains(surrounding.pageNr())) {
                    pinned.insert(surrounding.pageNr(), {index, element});
                }
                ++index;
            }
        }
    }
    for (const auto &row : shown.surroundings.mid(0, maximumRows)) {
        const int page = row.second.constFirst();
        const PxSurroundingKey key(shown.pages[page], page);
        const auto found = std::find_if(general.begin(), general.end(), [&key](const auto &entry) {
            return entry.second.isSuitable(key);
        });
        const auto own = pinned.value(page, {index, nullptr});
        const int first =
            found == general.end() ? index : indexOfGeneral[int(found - general.begin())];
        add("surrounding[row]", own.first < first        ? own.second
                                : found == general.end() ? nullptr
                                                         : found->first);
    }
}

void PxOriginEntries::addBarcodes(const QVector<int> &pages, int pageCount)
{
    const Elements elements = m_product.entries("barcodes", "barcode");
    const PxSourceElement *list = elements.isEmpty() ? nullptr : elements.constFirst()->parent;
    const PxBarcodeList barcodes(list ? list->dom : QDomElement());
    for (const int page : pages) {
        int index = 0;
        while (index < barcodes.size() && !barcodes[index].isOnPage(page, pageCount))
            ++index;
        add("barcode[row]", elements.value(index));
    }
}

void PxOriginEntries::addContentRedirects(const QVector<int> &pages)
{
    QVector<PageRange> ranges;
    for (Element redirect : m_product.entries("contentredirects", "contentredirect"))
        ranges.prepend(rangeOf(redirect)); // a later one overrides an earlier one
    for (const int page : pages) {
        const auto found =
            std::find_if(ranges.begin(), ranges.end(), [page](const PageRange &range) {
                return range.first <= page && page <= range.last;
            });
        add("contentredirect[row]", found == ranges.end() ? nullptr : found->element);
    }
}

void PxOriginEntries::addRotationRedirects(const QVector<int> &pages)
{
    QHash<int, Elements> redirectsOfPage;
    for (Element redirect : m_product.entries("rotationredirects", "rotationredirect")) {
        const int from = redirect->number("from", -2);
        if (from >= -1 && redirect->number("to", -2) >= -1)
            redirectsOfPage[from].append(redirect);
    }
    QHash<int, int> used;
    for (const int page : pages) {
        add("rotationredirect[row]", redirectsOfPage.value(page).value(used[page]++));
    }
}

void PxOriginEntries::addTemplates(const PxShownProduct &shown, const PxOriginFile &userDefaults)
{
    const QString normal = "normal";
    const QString theme = shown.themeId.isEmpty() ? normal : shown.themeId;
    const PxTemplateEntries own(userDefaults.element());
    const PxTemplateEntries common(m_product.element() ? m_product.element()->firstChild("defaults")
                                                       : nullptr);
    for (const PxPageContext &page : shown.kinds) {
        for (const bool isLayout : {true, false}) {
            PxOriginElement found{&userDefaults, own.find(theme, page, isLayout)};
            if (!found.element)
                found = {&m_product, common.find(theme, page, isLayout)};
            if (!found.element)
                found.element = common.find(normal, page, isLayout);
            m_entries[isLayout ? "defaults[layout]" : "defaults[background]"].append(found);
        }
    }
}

/** Of two logos for a product the later one is used. */
void PxOriginEntries::addLogo(const PxProductType &type, const PxOriginFile &theme)
{
    const PxSourceElement *logos = theme.element() ? theme.element()->firstChild("logos") : nullptr;
    if (!logos)
        return;
    Element found = nullptr;
    for (Element logo : logos->children) {
        if (PxProductType(logo->value("booktype").toUpper()) == type)
            found = logo;
    }
    m_entries["logo[own]"].append({&theme, found});
}
