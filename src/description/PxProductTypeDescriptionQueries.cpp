// The queries that compute their answers; PxProductTypeDescription.cpp reads the file.

#include "description/PxProductTypeDescription.h"

#include "geometry/PxClampedArithmetic.h"

#include <PxMessage.h>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using PageIndexes = QVector<QPair<int, int>>;

PageIndexes::const_iterator firstOfPage(const PageIndexes &indexes, int page)
{
    return std::lower_bound(indexes.begin(), indexes.end(), qMakePair(page, 0));
}

/** The first index of the page; `none` if it has none. */
int indexOfPage(const PageIndexes &indexes, int page, int none)
{
    const auto found = firstOfPage(indexes, page);
    return found == indexes.end() || found->first != page ? none : found->second;
}

} // namespace

bool PxProductTypeDescription::isValid() const
{
    return m_binding.isValid() && m_orientation.isValid() && m_usableSize.isValid();
}

bool PxProductTypeDescription::isCompatible(const PxProductTypeDescription &other,
                                            PxProductComparationCriterion criterion) const
{
    const auto mustAgree = [criterion](PxProductComparationCriterion property) {
        return (criterion & property) != 0;
    };
    if (m_orientation != other.m_orientation || m_hasSpine != other.m_hasSpine ||
        countAbstractPages() != other.countAbstractPages())
        return false;
    if (mustAgree(PxProductComparationBinding) && m_binding != other.m_binding)
        return false;
    if (mustAgree(PxProductComparationSpaceMagnitude) && m_spaceMagnitude != other.m_spaceMagnitude)
        return false;
    if (mustAgree(PxProductComparationPaperType) && m_paperType != other.m_paperType)
        return false;
    return !mustAgree(PxProductComparationPageIncrement) ||
           pageIncrement() == other.pageIncrement();
}

bool PxProductTypeDescription::supportsJigType(const PxJigType &jigType) const
{
    return m_jigTypes.matches(jigType.value());
}

PxThematicCategorySet PxProductTypeDescription::allowedBackgroundCategories() const
{
    return m_allowedBackgroundCategories;
}

QString PxProductTypeDescription::findDefaultTemplate(const PxDefaultTemplateKey &key,
                                                      bool useFallback, bool useUserDefaults) const
{
    if (useUserDefaults) {
        const QString choice = m_userDefaultTemplates.findTemplate(key, false);
        if (!choice.isEmpty())
            return choice;
    }
    return m_defaultTemplates.findTemplate(key, useFallback);
}

QStringList PxProductTypeDescription::themesWithDefaultTemplates() const
{
    QStringList themes = m_defaultTemplates.themes() + m_userDefaultTemplates.themes();
    themes.sort();
    themes.removeDuplicates();
    return themes;
}

int PxProductTypeDescription::minPages() const
{
    return m_spines.isEmpty() ? std::numeric_limits<int>::max() : m_spines.constFirst().pageCount;
}

int PxProductTypeDescription::maxPages() const
{
    return m_spines.isEmpty() ? std::numeric_limits<int>::min() : m_spines.constLast().pageCount;
}

int PxProductTypeDescription::findPageIncrement() const
{
    const int count = m_spines.size();
    if (count < 3)
        return std::numeric_limits<int>::min();
    // Not the step to the last page count, which may be irregular.
    return pxClampedInt(qint64(m_spines.at(count - 2).pageCount) -
                        m_spines.at(count - 3).pageCount);
}

QList<int> PxProductTypeDescription::offeredPageCounts() const
{
    const bool isBook = m_classification.productType().productClass() == PxProductClassBook;
    const int first = qMax(isBook ? minPages() : fixedPageCount(), 1);
    const int last = qMin(isBook ? maxPages() : fixedPageCount(), maximumListedPages);
    QList<int> pageCounts;
    for (int pageCount = first; pageCount <= last; ++pageCount) {
        if (isPageCountOffered(pageCount))
            pageCounts.append(pageCount);
    }
    return pageCounts;
}

bool PxProductTypeDescription::isPageCountOffered(int pageCount) const
{
    if (!isValid() || pageCount < 1 || pageCount > maximumListedPages)
        return false;
    return m_classification.productType().productClass() == PxProductClassBook
               ? isPageCountOfBook(pageCount)
               : pageCount == fixedPageCount();
}

bool PxProductTypeDescription::isPageCountOfBook(int pageCount) const
{
    if (pageCount < minPages() || pageCount > maxPages())
        return false;
    const bool isStep =
        m_pageIncrement > 0 && (qint64(pageCount) - minPages()) % m_pageIncrement == 0;
    if (!isStep && pageCount != minPages() && pageCount != maxPages())
        return false;
    return !m_hasSpine || findSpine(pageCount);
}

/** The page count of a product other than a book. */
int PxProductTypeDescription::fixedPageCount() const
{
    switch (m_classification.productType().productClass()) {
    case PxProductClassCalendar:
        return m_binding.calendarPageCount();
    case PxProductClassGift:
    case PxProductClassCard:
    case PxProductClassDecoration:
        return m_explicitNumberOfNormalPages;
    default:
        return 1;
    }
}

bool PxProductTypeDescription::hasCover() const
{
    return hasPages() && m_pageTypes.constFirst().matches(PxPageTypeCover);
}

PxPageTypeList PxProductTypeDescription::pageTypes(int pageCount) const
{
    qint64 wanted = 0;
    PxPageTypeList pageTypes;
    for (PxPageType pageType : m_pageTypes) {
        int count = 1;
        switch (pageType.value()) {
        case PxPageTypeNone:
            PxMessageLogger("PxProductTypeDescription", 459,
                            "PxPageTypeList PxProductTypeDescription::pageTypes(int) const")
                    .warning()
                << "Illegaler Seitentyp in fotobook.xml";
            continue;
        case PxPageTypeDuplexMonthCalendar:
        case PxPageTypeSimplexYearCalendar:
        case PxPageTypeNormalPages:
        case PxPageTypeSimplexMonthCalendar:
            count = qMax(0, pageCount);
            pageType = PxPageTypeNormalPage;
            break;
        default:
            break;
        }
        wanted += count;
        const int room = maximumListedPages - pageTypes.size();
        std::fill_n(std::back_inserter(pageTypes), qMin(count, room), pageType);
    }
    if (wanted > maximumListedPages)
        warnOfTooManyPages("pageTypes", pageCount);
    if (pageTypes.isEmpty())
        pageTypes.append(PxPageTypeNormalPage);
    return pageTypes;
}

void PxProductTypeDescription::warnOfTooManyPages(const char *method, int pageCount) const
{
    pxWarning().nospace() << "PxProductTypeDescription::" << method << " too many pages of "
                          << m_classification.productType().productName() << " with the page count "
                          << pageCount << ": the list ends after " << maximumListedPages;
}

PxPageAlignment PxProductTypeDescription::pageAlignment(int page) const
{
    const PxPageAlignment inner = m_horizontalPages ? PxPageAlignmentLeft : PxPageAlignmentTop;
    const PxPageAlignment outer = m_horizontalPages ? PxPageAlignmentRight : PxPageAlignmentBottom;
    const bool isOdd = (page & 1) != 0;
    if (isSimplex()) {
        switch (m_cardAlignment) {
        case CardAlignment::None:
            return outer;
        case CardAlignment::VarioSingleCardStyle:
            return PxPageAlignmentMiddle;
        case CardAlignment::CardStyle:
        case CardAlignment::CollegeBlockStyle:
            return isOdd ? outer : inner;
        }
    }
    if (!m_hasSpine)
        return isOdd ? outer : inner;
    if (page == 1) // the spine itself
        return m_horizontalPages ? PxPageAlignmentMiddle : PxPageAlignmentCenter;
    return isOdd || page == 0 ? inner : outer;
}

QList<int> PxProductTypeDescription::productionNumberingList(int pageCount) const
{
    const int count = qBound(0, pageCount, maximumListedPages);
    if (count < pageCount)
        warnOfTooManyPages("productionNumberingList", pageCount);
    QList<int> numbers = m_productionNumberingPages.mid(0, count);
    int last = numbers.isEmpty() ? 0 : numbers.constLast();
    while (numbers.size() < count)
        numbers.append(last = pxClampedSum(last, 1));
    return numbers;
}

bool PxProductTypeDescription::contentAllowedOnPage(int page) const
{
    return m_pagesWithContent.isEmpty() ||
           std::binary_search(m_pagesWithContent.begin(), m_pagesWithContent.end(), page);
}

int PxProductTypeDescription::contentDropRedirect(int page) const
{
    return m_contentDropRedirects.targetPage(page);
}

PxPageRotationRedirectList PxProductTypeDescription::rotationRedirectForSourcePage(int page) const
{
    PxPageRotationRedirectList redirects;
    for (auto it = firstOfPage(m_rotationsBySource, page);
         it != m_rotationsBySource.end() && it->first == page; ++it)
        redirects.append(m_rotationRedirects.at(it->second));
    return redirects;
}

PxPageRotationRedirectList PxProductTypeDescription::rotationRedirectForTargetPage(int page) const
{
    return m_rotationRedirects.filterByTargetPage(page);
}

QSize PxProductTypeDescription::coverSize() const
{
    return pxClampedSum(m_usableSize, QSize(m_coverExtraHorizontal, m_coverExtraVertical));
}

QSize PxProductTypeDescription::usablePrintSize(const PxPageType &pageType, int pageCount) const
{
    switch (pageType.value()) {
    case PxPageTypeFullCover:
    case PxPageTypeClampCoverFront:
    case PxPageTypeClampCoverBack:
    case PxPageTypeCromolinen:
    case PxPageTypeLeather:
    case PxPageTypeArtificialLeather:
        return coverSize();
    case PxPageTypeSpine:
        if (pageCount == -1)
            PxMessageLogger("PxProductTypeDescription", 264,
                            "QSize PxProductTypeDescription::usablePrintSize(const PxPageType&, "
                            "int) const")
                    .warning()
                << "Fehler PxProductTypeDescription::usablePrintSize wurde mit dem "
                   "Buchrücken aufgerufen ohne das eine Seitenanzahl angegeben wurde!";
        return QSize(spineWidth(pageCount), coverSize().height());
    default:
        return m_usableSize;
    }
}

PxPageSizeSpec PxProductTypeDescription::sizeSpec(const PxPageSizeKey &key) const
{
    return PxPageSizeSpec(usablePrintSize(key.pageType(), key.pageCount()),
                          bleedMargins(key.pageContext(), key.pageCount()), m_safetyMargins,
                          m_orientation, clampExtra(key.pageType()));
}

PxMargins PxProductTypeDescription::bleedMargins(const PxPageContext &page, int pageCount) const
{
    const PxPageType pageType = page.pageType();
    const bool isCover = pageType.matches(PxPageTypeCover);
    const PxBleedMargin &bleed = isCover ? m_bleedMarginCover : m_bleedMarginNormal;
    const int v = bleed.vertical();
    const int h = bleed.horizontal();
    if (pageType.matches(PxPageTypeSpine))
        return PxMargins(v, v, 0, 0);
    // No bleed at the inner edge, where the pages are bound.
    if (pageCount > 1 && !hasCardStyleAlignment()) {
        if (page.alignment() == PxPageAlignmentLeft)
            return PxMargins(v, v, h, 0);
        if (page.alignment() == PxPageAlignmentRight)
            return PxMargins(v, v, 0, h);
    }
    return PxMargins(v, v, h, h);
}

int PxProductTypeDescription::clampExtra(const PxPageType &pageType) const
{
    return pageType.matches(PxPageTypeNormalPage) ? m_normalPageHorizontalClamp : 0;
}

int PxProductTypeDescription::spineWidth(int pageCount) const
{
    return spine(pageCount).width();
}

int PxProductTypeDescription::spineMaxFontHeight(int pageCount) const
{
    return spine(pageCount).maxFontHeight();
}

/** Null for a page count without a spine. */
const PxProductTypeDescription::Spine *PxProductTypeDescription::findSpine(int pageCount) const
{
    const auto found =
        std::lower_bound(m_spines.begin(), m_spines.end(), pageCount,
                         [](const Spine &s, int count) { return s.pageCount < count; });
    return found == m_spines.end() || found->pageCount != pageCount ? nullptr : found;
}

/** Has the width 0 for a page count without a spine. */
PxProductTypeDescriptionSpineData PxProductTypeDescription::spine(int pageCount) const
{
    const Spine *found = findSpine(pageCount);
    return found ? found->data : PxProductTypeDescriptionSpineData();
}

PxSurroundingDescription PxProductTypeDescription::findSurrounding(
    const PxSurroundingKey &key) const
{
    int found = m_surroundings.size();
    for (const int index : m_generalSurroundings) {
        if (m_surroundings.at(index).isSuitable(key)) {
            found = index;
            break;
        }
    }
    if (key.pageIndex() != -1)
        found = qMin(found, indexOfPage(m_pinnedSurroundings, key.pageIndex(), found));
    return m_surroundings.value(found);
}

PxBarcode PxProductTypeDescription::barcodeOnPage(int page, int pageCount) const
{
    const int none = m_barcodes.size();
    const qint64 fromBack = qint64(pageCount) - page;
    const int inFront = indexOfPage(m_barcodesFromFront, page, none);
    const int atBack =
        fromBack == int(fromBack) ? indexOfPage(m_barcodesFromBack, int(fromBack), none) : none;
    return m_barcodes.value(qMin(inFront, atBack));
}

PxProductionExtraPageGroupList PxProductTypeDescription::extraProductionContents() const
{
    return m_extraProductionPages;
}
