#include "drawing/PxSharedSheets.h"

#include <algorithm>
#include <tuple>

namespace {

auto lookOf(const PxMargins &margins)
{
    return std::make_tuple(margins.left(), margins.top(), margins.right(), margins.bottom());
}

auto lookOf(const PxSurroundingDescription &surrounding)
{
    return std::make_tuple(int(surrounding.surroundingType()), surrounding.paintOnTop(),
                           surrounding.image());
}

auto lookOf(const PxBarcode &barcode)
{
    return std::make_tuple(barcode.reverseOrder(), barcode.imageName());
}

/** All that is drawn of a page, apart from what can only be compared for equality. */
auto lookOf(const PxDrawnPage &page)
{
    return std::make_tuple(int(page.role), lookOf(page.bleed), lookOf(page.safetyMargins),
                           page.foldMargin, page.clamp, page.spineTextHeight, page.hasSpineLogo,
                           page.isPrinted, page.takesContent, lookOf(page.surrounding),
                           lookOf(page.barcode), page.hasPageNumber, page.layoutTemplate,
                           page.backgroundTemplate);
}

bool looksLike(const PxDrawnPage &page, const PxDrawnPage &other)
{
    return page.trim == other.trim && page.context == other.context &&
           page.pageNumber == other.pageNumber &&
           page.surrounding.imageRect() == other.surrounding.imageRect() &&
           page.barcode.rect() == other.barcode.rect() && lookOf(page) == lookOf(other);
}

bool looksLike(const PxDrawnSheet &sheet, const PxDrawnSheet &other)
{
    return sheet.kind == other.kind && sheet.spiralLoops == other.spiralLoops &&
           sheet.hasHook == other.hasHook && sheet.hasHole == other.hasHole &&
           sheet.notes == other.notes &&
           std::equal(sheet.pages.begin(), sheet.pages.end(), other.pages.begin(),
                      other.pages.end(),
                      [](const auto &one, const auto &two) { return looksLike(one, two); });
}

} // namespace

QVector<PxSharedSheet> pxSharedSheets(const QVector<PxDrawnProduct> &products)
{
    QVector<PxSharedSheet> shared;
    for (const PxDrawnProduct &product : products) {
        for (const PxDrawnSheet &sheet : product.sheets) {
            const auto same =
                std::find_if(shared.begin(), shared.end(), [&sheet](const PxSharedSheet &one) {
                    return looksLike(one.sheet, sheet);
                });
            const PxSharedSheet::Use use{product.pageCount, sheet.standsFor};
            if (same == shared.end()) {
                shared.append({sheet, {use}});
                continue;
            }
            same->uses.append(use);
            if (same->sheet.standsFor != sheet.standsFor)
                same->sheet.standsFor.clear();
        }
    }
    std::stable_sort(shared.begin(), shared.end(), [](const auto &one, const auto &two) {
        return one.uses.constFirst().pages.value(0) < two.uses.constFirst().pages.value(0);
    });
    for (int i = 0; i < shared.size(); ++i)
        shared[i].sheet.index = i;
    return shared;
}
