#include "check/product/PxMarginCheck.h"

#include "check/rules/PxElementReading.h"

#include <algorithm>

namespace {

constexpr const char *coverExtraHorizontal = "coverextrahorizontal";
constexpr const char *coverExtraVertical = "coverextravertical";
constexpr const char *foldMargin = "foldmargin";

QString sizeText(const QSize &size)
{
    return QString("%1 x %2").arg(size.width()).arg(size.height());
}

} // namespace

PxMarginCheck::PxMarginCheck(const PxCheckedProduct &product, const PxReporter &report)
    : m_product(product)
    , m_report(report)
    , m_size(product.description().usablePrintSize(PxPageTypeNormalPage, 0))
{}

void PxMarginCheck::run()
{
    if (!m_size.isEmpty()) {
        checkExceeding();
        checkCover();
    }
}

void PxMarginCheck::checkExceeding() const
{
    const PxProductTypeDescription &description = m_product.description();
    const struct
    {
        const char *attribute;
        qint64 taken;
        int available;
    } rows[] = {
        {"safetymargin", qint64(description.safetyMargin()) * 2,
         qMin(m_size.width(), m_size.height())},
        {foldMargin, description.foldMargin(), m_size.width()},
        {"normalpagehorizontalclamp", description.normalPageHorizontalClamp(), m_size.width()},
    };
    for (const auto &row : rows) {
        if (row.taken >= row.available)
            m_report
                .add(PxTag::MarginExceedsPage, m_product.element().rangeOf(row.attribute),
                     "\"%1\" takes %2 of a page %3", row.attribute, row.taken, sizeText(m_size))
                .now("nothing of the page is left");
    }
}

/** Whether a cover is smaller than the page. */
bool PxMarginCheck::hasSmallCover() const
{
    const QSize cover = m_product.description().coverSize();
    if (cover.width() >= m_size.width() && cover.height() >= m_size.height())
        return false;
    // Clear foils and the covers of calendars are as large as the pages, whatever is added.
    return std::any_of(m_product.pages().read().begin(), m_product.pages().read().end(),
                       [&](const PxPageEntry &page) {
                           return !page.type.hasValue(PxPageTypeSpine) &&
                                  m_product.description().usablePrintSize(page.type, 0) != m_size;
                       });
}

void PxMarginCheck::checkCover() const
{
    if (!hasSmallCover())
        return;
    const QSize cover = m_product.description().coverSize();
    if (cover.width() < m_size.width())
        checkCoverWidth();
    if (cover.height() < m_size.height())
        m_report
            .add(PxTag::CoverSmallerThanPage, m_product.element().rangeOf(coverExtraVertical),
                 "a cover that is %1 lower than the page", qint64(m_size.height()) - cover.height())
            .now("a cover half is %1, a page %2", sizeText(cover), sizeText(m_size));
}

/** The library may take a part of what the file adds, and gives it to the spine. */
void PxMarginCheck::checkCoverWidth() const
{
    const PxSourceElement &element = m_product.element();
    const PxElementReading reading(element);
    if (!reading.isReadable(coverExtraHorizontal) || reading.isMisspelt(coverExtraHorizontal))
        return;
    const QSize cover = m_product.description().coverSize();
    const qint64 lack = qint64(m_size.width()) - cover.width();
    const qint64 taken = lack + reading.number(coverExtraHorizontal);
    m_report
        .add(PxTag::CoverSmallerThanPage, element.rangeOf(coverExtraHorizontal),
             "a cover that is %1 narrower than the page", lack)
        .now(taken > 0 ? "a cover half is %1, a page %2: the spine takes %3 of the cover half"
                       : "a cover half is %1, a page %2",
             sizeText(cover), sizeText(m_size), taken)
        .hint(taken > 0 ? "\"coverextrahorizontal\" must be %1 at least" : "", taken);
}
