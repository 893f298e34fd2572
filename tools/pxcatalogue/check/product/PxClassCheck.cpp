#include "check/product/PxClassCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "format/PxFormat.h"

#include <algorithm>

namespace {

constexpr const char *binding = "binding";
constexpr const char *normalPages = "numOfNormalPages";
constexpr const char *pieces = "numOfProducts";
constexpr const char *sellingPages = "defaultSellingPages";

constexpr int bookBindings = PxBindingHardcover | PxBindingSoftcover | PxBindingCromolinen |
                             PxBindingLeather | PxBindingArtificialLeather | PxBindingClamp |
                             PxBindingBooklet | PxBindingFoil;
constexpr int calendarBindings = PxBindingCalendarSimplex | PxBindingCalendarDuplex |
                                 PxBindingCalendarOnePage | PxBindingCalendarAnnualDuplex;

/** The classes whose page count is "numOfNormalPages". */
constexpr auto counted =
    static_cast<PxProductClass>(PxProductClassGift | PxProductClassCard | PxProductClassDecoration);

bool isMonthCalendar(const PxPageEntry &entry)
{
    constexpr auto months =
        static_cast<PxPageTypeEnum>(PxPageTypeSimplexMonthCalendar | PxPageTypeDuplexMonthCalendar);
    return entry.type.matches(months);
}

} // namespace

void PxClassCheck::run()
{
    if (!m_product.type().isValid())
        return;
    if (checkBinding())
        checkPageCount();
    checkPieces();
    checkSellingPages();
}

/** Whether nothing was found. A card may have the binding of a calendar printed on one side. */
bool PxClassCheck::checkBinding() const
{
    const PxElementReading reading(m_product.element());
    const PxBinding given = m_product.description().binding();
    const bool isOfBook = (given.value() & bookBindings) != 0;
    const bool isOfCalendar = (given.value() & calendarBindings) != 0;
    if (!reading.isReadable(binding) || reading.isMisspelt(binding))
        return false;
    const QString shown = QString("it is shown as \"%1\"").arg(given.humanReadableName());
    const PxProductType type = m_product.type();
    if (type.isBook() && reading.isGiven(binding) && !isOfBook) {
        addBinding(PxTag::BindingOfOtherClass, "a book", shown, bookBindings);
        return false;
    }
    const QVector<PxPageEntry> &pages = m_product.pages().read();
    const bool hasMonths = std::any_of(pages.begin(), pages.end(), isMonthCalendar);
    if (type.isCalendar() && !isOfCalendar && (isOfBook || hasMonths)) {
        addBinding(PxTag::BindingOfOtherClass, "a calendar", "the page count of the calendar is 1",
                   calendarBindings);
        return false;
    }
    if (!type.isBook() && !type.isCalendar() && isOfBook)
        addBinding(PxTag::BindingOfBook, "a product that is no book", shown, 0);
    return true;
}

void PxClassCheck::addBinding(PxTag tag, const QString &ofClass, const QString &now,
                              int allowed) const
{
    const PxSourceElement &element = m_product.element();
    const PxBinding given = m_product.description().binding();
    const bool isCalendar = m_product.type().isBook() && m_product.isLikeCalendar();
    m_report
        .add(tag, element.rangeOf(binding),
             element.attribute(binding) ? "the binding %2 on %1" : "%1 without a binding", ofClass,
             given.encodeCSV())
        .now(now)
        .hint(allowed == 0 ? ""
              : isCalendar
                  ? "give the product type the class \"calendar\"; the bindings of a book are %1"
                  : "its bindings are %1",
              PxFormat::encode(PxKeywordSet::Binding, allowed));
}

void PxClassCheck::checkPageCount() const
{
    const PxElementReading reading(m_product.element());
    const PxProductTypeDescription &description = m_product.description();
    const int pageCount = description.explicitNumberOfNormalPages();
    if (m_product.type().isProductClass(counted) && pageCount <= 0) {
        m_report
            .add(PxTag::PageCountNotPositive, m_product.element().rangeOf(normalPages),
                 "a product of %1 normal pages", pageCount)
            .now("the page count is %1", unsigned(pageCount))
            .hint("leave it out for a single page");
        return;
    }
    if (!reading.isNumber(normalPages))
        return;
    switch (m_product.type().productClass()) {
    case PxProductClassBook:
        if (pageCount != 1)
            addIgnored("\"numOfNormalPages\" is %1 for a book",
                       "its page counts are those of \"spines\"");
        break;
    case PxProductClassCalendar:
        if (pageCount != description.binding().calendarPageCount() && reading.isReadable(binding) &&
            !reading.isMisspelt(binding))
            addIgnored("\"numOfNormalPages\" is %1 for a calendar",
                       QString("its binding gives it %1")
                           .arg(PxMessageText::pages(description.binding().calendarPageCount())));
        else if (reading.isReadable(binding) && !m_product.isPageRangeMissing() &&
                 !isInList(pageCount))
            addOtherThanList();
        break;
    case PxProductClassPrint:
        if (pageCount != 1)
            addIgnored("\"numOfNormalPages\" is %1 for a print", "its page count is 1");
        break;
    default:
        if (!isInList(pageCount))
            addOtherThanList();
    }
}

void PxClassCheck::addOtherThanList() const
{
    const PxProductTypeDescription &description = m_product.description();
    const int pageCount = description.explicitNumberOfNormalPages();
    PxAddedFinding finding =
        addIgnored("\"numOfNormalPages\" is %1, but \"pages\" lists another number",
                   QString("its page count is %1, and it has %2")
                       .arg(pageCount)
                       .arg(PxMessageText::pages(description.pageTypes(pageCount).size())));
    if (m_product.isPageRangeMissing() && m_product.pages().normalCount() > 0)
        finding.hint("write \"normalpages\" for \"normalpage\" in the list of pages");
}

PxAddedFinding PxClassCheck::addIgnored(const char *message, const QString &now) const
{
    return m_report
        .add(PxTag::PageCountIgnored, m_product.element().rangeOf(normalPages), message,
             m_product.description().explicitNumberOfNormalPages())
        .now(now);
}

/** Whether the list of pages grows with the page count, or has as many pages. */
bool PxClassCheck::isInList(int pageCount) const
{
    const QVector<PxPageEntry> &pages = m_product.pages().read();
    if (!m_product.pages().isGiven() || !m_product.pages().isSound())
        return true; // which has been reported
    const qint64 normalCount = m_product.pages().normalCount();
    const bool isRange = std::any_of(pages.begin(), pages.end(),
                                     [](const PxPageEntry &entry) { return entry.isRange(); });
    // The list may be that of a single piece.
    const qint64 ofAllPieces = normalCount * m_product.description().explicitNumberOfProducts();
    // A calendar may have a normal page as its front.
    const bool hasFront = m_product.type().isCalendar() && pageCount + 1 == pages.size();
    return isRange || hasFront || pageCount == normalCount || pageCount == pages.size() ||
           pageCount == ofAllPieces;
}

/** Several pieces may all have the same few pages. */
void PxClassCheck::checkPieces() const
{
    const PxProductTypeDescription &description = m_product.description();
    const int count = description.explicitNumberOfProducts();
    const int pageCount = description.explicitNumberOfNormalPages();
    if (!m_product.type().isProductClass(counted) || count < 2 || pageCount < 1 ||
        !PxElementReading(m_product.element()).isReadable(normalPages) || pageCount % count == 0 ||
        count % pageCount == 0)
        return;
    m_report
        .add(PxTag::PiecesUneven, m_product.element().rangeOf(pieces),
             "%1 pieces share %2 normal pages", count, pageCount)
        .now("a piece has %1, and %2 more belong to none", PxMessageText::pages(pageCount / count),
             pageCount % count)
        .hint("\"numOfNormalPages\" counts the pages of all pieces together");
}

/** That of a book is compared with its table. */
void PxClassCheck::checkSellingPages() const
{
    const int pageCount = m_product.description().defaultSellingPages();
    const PxElementReading reading(m_product.element());
    if (m_product.type().isBook() || !reading.isNumber(sellingPages) || pageCount == -1 ||
        !reading.isReadable(normalPages))
        return;
    const QList<int> offered = m_product.description().offeredPageCounts();
    if (!offered.isEmpty() && !offered.contains(pageCount))
        m_report
            .add(PxTag::SellingPagesNotOffered, m_product.element().rangeOf(sellingPages),
                 "%1 is no page count of this product", pageCount)
            .now("a new one is asked for with %1, and it is sold with %2",
                 PxMessageText::pages(pageCount), PxMessageText::pages(offered.constFirst()))
            .hint("leave it out: only books are sold with several page counts");
}
