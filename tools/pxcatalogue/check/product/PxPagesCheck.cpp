#include "check/product/PxPagesCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxEditDistance.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <algorithm>

namespace {

/** The page type that is meant. If the normal pages are missing, they are preferred. */
QString meant(const QString &text, bool isRangeMissing)
{
    QStringList names = PxFormat::keywordNames(PxKeywordSet::PageType);
    const QString nearest = PxSpelling::nearest(text, names);
    if (nearest.isEmpty() || !isRangeMissing)
        return nearest;
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) {
                                   const PxPageType type(name);
                                   return !PxPageEntry::isRange(type) || PxPageEntry::isUnion(type);
                               }),
                names.end());
    const QString range = PxSpelling::nearest(text, names);
    const auto distanceTo = [&](const QString &name) {
        return PxEditDistance::between(text.toUpper(), name.toUpper(),
                                       PxEditDistance::Swap::IsOneChange);
    };
    return !range.isEmpty() && distanceTo(range) <= distanceTo(nearest) ? range : nearest;
}

QString hintFor(const QString &text, bool isRangeMissing)
{
    const QStringList words = PxSpelling::words(text);
    const bool areTypes = std::all_of(
        words.begin(), words.end(), [](const QString &word) { return !PxPageType(word).isNull(); });
    if (words.size() > 1 && areTypes)
        return "separate pages with commas";
    const QString name = meant(text, isRangeMissing);
    return name.isEmpty() ? PxSpelling::oneOf(PxFormat::mainKeywordNames(PxKeywordSet::PageType))
                          : PxSpelling::didYouMean(name);
}

bool isCover(const PxPageEntry &entry)
{
    // The back of a calendar comes last, and there need not be a front.
    return entry.type.matches(PxPageTypeCover) && !entry.isUnion() &&
           !entry.type.hasValue(PxPageTypeSpine) &&
           !entry.type.hasValue(PxPageTypeCalendarCoverBack);
}

} // namespace

void PxPagesCheck::run()
{
    if (!m_product.pages().isGiven()) {
        checkPresence();
        return;
    }
    checkCount();
    for (const PxPageEntry &entry : m_product.pages().read())
        checkEntry(entry);
    // If a page is left out, all others have another position.
    if (!m_product.pages().isSound())
        return;
    if (checkCoverPosition())
        checkSpinePosition();
    checkRange();
}

void PxPagesCheck::checkPresence() const
{
    // Many small products have just one normal page, the default.
    if (!hasSeveralPages())
        return;
    const PxMissingPart pages = PxElementReading(m_product.element()).missingChild("pages");
    m_report.add(PxTag::PagesMissing, pages.range, "the product has no \"pages\"")
        .now(nowWithoutPages())
        .hint(pages.hint);
}

/** For a product that lists no page. */
QString PxPagesCheck::nowWithoutPages() const
{
    return QString("the product has %1 page, and no cover")
        .arg(m_product.description().pageTypes(1).size());
}

/** For a product without this entry. */
QString PxPagesCheck::nowWithout(const PxPageEntry &entry) const
{
    if (!m_product.pages().hasPage())
        return nowWithoutPages();
    if (m_product.isPageRangeMissing())
        return QString("it is left out, and the %1 has %2, whatever page count is ordered")
            .arg(m_product.type().isBook() ? "book" : "product",
                 PxMessageText::pages(m_product.description().pageTypes(1).size()));
    const bool isLast = std::all_of(&entry + 1, m_product.pages().read().end(),
                                    [](const PxPageEntry &next) { return next.type.isNull(); });
    return isLast ? "it is left out" : "it is left out, and the pages behind it move up";
}

bool PxPagesCheck::hasSeveralPages() const
{
    const PxProductTypeDescription &description = m_product.description();
    constexpr auto calendars = static_cast<PxBindingEnum>(
        PxBindingCalendarSimplex | PxBindingCalendarDuplex | PxBindingCalendarAnnualDuplex);
    return m_product.type().isBook() ||
           (m_product.type().isCalendar() && description.binding().matches(calendars)) ||
           description.explicitNumberOfNormalPages() > 1;
}

void PxPagesCheck::checkCount() const
{
    if (m_product.pages().droppedCount() == 0)
        return;
    m_report
        .add(PxTag::PagesTooMany, m_product.pages().firstDropped(), "a list of %1 pages",
             m_product.pages().read().size() + m_product.pages().droppedCount())
        .now("the first %1 are used", m_product.pages().read().size())
        .hint("write \"normalpages\" for all normal pages");
}

void PxPagesCheck::checkEntry(const PxPageEntry &entry) const
{
    if (entry.text.isEmpty()) {
        const PxMissingPart text =
            PxElementReading(*m_product.element().firstChild("pages")).missingText();
        m_report
            .add(PxTag::PagesEntryEmpty, text.hint.isEmpty() ? entry.range : text.range,
                 m_product.pages().read().size() == 1 ? "the list of pages is empty"
                                                      : "an empty entry in the list of pages")
            .now(m_product.pages().hasPage() ? "it is left out, with a warning each time"
                                             : nowWithoutPages())
            .hint(text.hint);
    } else if (entry.type.isNull()) {
        m_report.add(PxTag::PagesEntryUnknown, entry.range, "\"%1\" is no type of page", entry.text)
            .now([&] { return nowWithout(entry); })
            .hint([&] { return hintFor(entry.text, m_product.isPageRangeMissing()); });
    } else if (entry.isUnion()) {
        m_report
            .add(PxTag::PageTypeUnion, entry.range, "\"%1\" is several types of page at once",
                 entry.text)
            .now("the product has one page that is all of: %1", entry.type.encodeCSV())
            .hint("name the type of this page");
    }
}

/** Whether nothing was found. */
bool PxPagesCheck::checkCoverPosition() const
{
    const auto cover =
        std::find_if(m_product.pages().read().begin(), m_product.pages().read().end(), isCover);
    if (m_product.description().hasCover() || cover == m_product.pages().read().end())
        return true;
    m_report
        .add(PxTag::CoverNotFirst, cover->range, "a cover, but the list begins with \"%1\"",
             m_product.pages().read().constFirst().text)
        .now("the product counts as one without cover")
        .hint("begin with the cover");
    return false;
}

void PxPagesCheck::checkSpinePosition() const
{
    int page = 0;
    for (const PxPageEntry &entry : m_product.pages().read()) {
        const PxPageAlignment alignment = m_product.description().pageAlignment(page);
        if (entry.type.hasValue(PxPageTypeSpine) && !m_product.description().isSimplex() &&
            alignment != PxPageAlignmentMiddle && alignment != PxPageAlignmentCenter)
            m_report
                .add(PxTag::SpineNotSecond, entry.range,
                     "a spine that is not the second of the pages")
                .now("page 1 is the one that lies in the middle")
                .hint("begin with back cover, spine, front cover");
        page += entry.isRange() ? 2 : 1; // a left one and a right one
    }
}

/** That of gifts and cards is compared with the number of pages that they are given. */
void PxPagesCheck::checkRange() const
{
    if (!m_product.isPageRangeMissing())
        return;
    const QVector<PxPageEntry> &pages = m_product.pages().read();
    if (m_product.type().isBook())
        m_report
            .add(PxTag::PagesRangeMissing, pages.constFirst().range,
                 "a book whose list of pages has no \"normalpages\"")
            .now("it has %1 pages, whatever page count is ordered", pages.size())
            .hint("write \"normalpages\" where the pages of the book are");
    else if (m_product.type().isCalendar())
        addShortCalendar();
}

void PxPagesCheck::addShortCalendar() const
{
    const QVector<PxPageEntry> &pages = m_product.pages().read();
    const auto normal = std::find_if(pages.begin(), pages.end(), [](const PxPageEntry &entry) {
        return entry.type.hasValue(PxPageTypeNormalPage);
    });
    const PxBinding binding = m_product.description().binding();
    const char *range = binding.matches(PxBindingCalendarSimplex)  ? "simplexmonthcalendar"
                        : binding.matches(PxBindingCalendarDuplex) ? "duplexmonthcalendar"
                                                                   : "normalpages";
    m_report
        .add(PxTag::PagesRangeMissing, (normal == pages.end() ? pages.begin() : normal)->range,
             "a calendar whose binding gives it %1 pages, of which the list has no more than %2",
             binding.calendarPageCount(), pages.size())
        .now("its page count is %1, and it has %2", binding.calendarPageCount(),
             PxMessageText::pages(pages.size()))
        .hint("write \"%1\" for all of them", range);
}
