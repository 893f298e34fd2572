#include "check/layout/PxProductPages.h"

#include "check/PxCheckLimits.h"
#include "check/rules/PxElementReading.h"

#include <QSet>

#include <algorithm>

namespace {

bool isSingle(const PxPageEntry &entry)
{
    return !entry.type.isNull() && !entry.isUnion();
}

} // namespace

PxProductPages::PxProductPages(const PxCheckedProduct &product) : m_product(product)
{
    if (!isPlain())
        return;
    qint64 pages = 0;
    for (const int count : pageCounts()) {
        const bool isSane =
            count >= 1 && count <= PxCheckLimits::pageCount &&
            qint64(count) * product.description().countAbstractPages() <= PxCheckLimits::pages;
        if (isSane)
            m_layouts.append({count, pagesWith(count)});
        pages += isSane ? m_layouts.constLast().pages.size() : PxCheckLimits::pages;
        if (pages >= PxCheckLimits::pages) {
            m_layouts.clear();
            return;
        }
    }
    if (isKnown())
        collectPages();
}

bool PxProductPages::isPlain() const
{
    const PxSourceElement &element = m_product.element();
    const PxElementReading reading(element);
    bool isPlain = m_product.pages().isGiven() && m_product.type().isValid() &&
                   !m_product.isPageRangeMissing();
    // The page count of a calendar follows from its binding.
    constexpr auto ofCalendar =
        static_cast<PxBindingEnum>(PxBindingCalendarSimplex | PxBindingCalendarDuplex |
                                   PxBindingCalendarOnePage | PxBindingCalendarAnnualDuplex);
    if (m_product.type().isCalendar() && !m_product.description().binding().matches(ofCalendar))
        return false;
    for (const char *attribute :
         {"binding", "numOfNormalPages", "horizontalPages", "cardStyleAlignment",
          "varioSingleCardStyleAlignment", "collegeBlockStyleAlignment"})
        isPlain = isPlain && reading.isReadable(attribute) && !reading.isMisspelt(attribute);
    return isPlain &&
           std::all_of(m_product.pages().read().begin(), m_product.pages().read().end(), isSingle);
}

/**
 * Whether a book, and nothing else, is bound like one, has pages on both sides, and a spine is
 * page 1.
 */
bool PxProductPages::isInOrder() const
{
    constexpr auto ofBook = static_cast<PxBindingEnum>(
        PxBindingHardcover | PxBindingSoftcover | PxBindingCromolinen | PxBindingLeather |
        PxBindingArtificialLeather | PxBindingClamp | PxBindingBooklet | PxBindingFoil);
    const PxBinding binding = m_product.description().binding();
    const PxPageEntry *spine = m_product.pages().spine();
    const bool isSound =
        m_product.type().isBook() ? !binding.isSimplex() : !binding.matches(ofBook);
    return isSound && (!spine || spine - m_product.pages().read().constData() == 1);
}

QRect PxProductPages::sheet(const QSize &page, int horizontalBleed, int verticalBleed)
{
    using PxCheckLimits::comparedSide;
    if (page.isEmpty() || page.width() > comparedSide || page.height() > comparedSide)
        return QRect();
    const int h = qBound(0, horizontalBleed, comparedSide);
    const int v = qBound(0, verticalBleed, comparedSide);
    return QRect(QPoint(0, 0), page).adjusted(-h, -v, h, v);
}

QVector<PxPageContext> PxProductPages::contexts() const
{
    QVector<PxPageContext> contexts;
    if (!isKnown() || !isInOrder())
        return contexts;
    const auto add = [&contexts](const PxPageType &type, PxPageAlignment alignment) {
        const PxPageContext context(type, alignment);
        if (!contexts.contains(context))
            contexts.append(context);
    };
    for (const Page &page : m_pages) {
        add(page.type, page.alignment);
        add(page.type, PxPageAlignmentFullPage); // of a double page
    }
    // The table of spines says that the list of pages lacks one.
    const PxProductTypeDescription &description = m_product.description();
    if (!description.hasSpine() && m_product.type().isBook() &&
        description.spineWidth(description.maxPages()) > 0)
        add(PxPageTypeSpine, PxPageAlignmentAll);
    return contexts;
}

QVector<int> PxProductPages::pageCounts() const
{
    switch (m_product.type().productClass()) {
    case PxProductClassBook:
        return pageCountsOfBook();
    case PxProductClassCalendar:
        // The library answers this only for products of its registry, where a file may be missing.
        switch (m_product.description().binding().value()) {
        case PxBindingCalendarSimplex:
            return {12};
        case PxBindingCalendarDuplex:
            return {24};
        case PxBindingCalendarAnnualDuplex:
            return {2};
        default:
            return {1};
        }
    case PxProductClassGift:
    case PxProductClassCard:
    case PxProductClassDecoration:
        return {m_product.description().explicitNumberOfNormalPages()};
    default:
        return {1};
    }
}

/** All counts that the editor offers or that have a spine; too many do less harm than too few. */
QVector<int> PxProductPages::pageCountsOfBook() const
{
    const PxProductTypeDescription &book = m_product.description();
    const qint64 step = book.pageIncrement();
    if (step < 1 || book.minPages() < 1 || book.maxPages() > PxCheckLimits::pageCount)
        return {};
    QSet<int> counts{book.maxPages()};
    for (qint64 count = book.minPages(); count < book.maxPages(); count += step)
        counts.insert(int(count));
    const PxSourceElement *spines = m_product.element().firstChild("spines");
    const auto ofTable =
        spines ? spines->childrenNamed("spine") : QVector<const PxSourceElement *>();
    for (const PxSourceElement *spine : ofTable)
        counts.insert(spine->number("pages"));
    QVector<int> sorted(counts.begin(), counts.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/** The same list as that of the library, which takes too long for each page count. */
QVector<PxPageTypeEnum> PxProductPages::pagesWith(int normalPageCount) const
{
    QVector<PxPageTypeEnum> pages;
    for (const PxPageEntry &entry : m_product.pages().read()) {
        if (entry.isRange())
            pages.insert(pages.size(), normalPageCount, PxPageTypeNormalPage);
        else
            pages.append(entry.type.value());
    }
    return pages;
}

void PxProductPages::collectPages()
{
    m_lastPage = m_layouts.constLast().pages.size() - 1; // page counts ascend
    QVector<int> known(m_lastPage + 1);                  // the types of each page so far
    for (const Layout &layout : qAsConst(m_layouts)) {
        for (int number = 0; number < layout.pages.size(); ++number) {
            const PxPageTypeEnum type = layout.pages.at(number);
            if ((known.at(number) & type) != 0)
                continue;
            known[number] |= type;
            m_pages.append({number, type, m_product.description().pageAlignment(number)});
            m_pageTypes.expandedTo(type);
        }
    }
}
