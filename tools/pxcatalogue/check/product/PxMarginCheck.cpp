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

void PxMarginCheck::checkCoverWidth() const
{
    const PxSourceElement &element = m_product.element();
    const QSize cover = m_product.description().coverSize();
    const PxElementReading reading(element);
    if (!reading.isReadable(coverExtraHorizontal) || reading.isMisspelt(coverExtraHorizontal))
        return;
    const int extra = reading.number(coverExtraHorizontal);
    const QString now =
        QString("a cover half is %1, a page %2").arg(sizeText(cover), sizeText(m_size));
    if (extra < 0)
        m_report
            .add(PxTag::CoverSmallerThanPage, element.rangeOf(coverExtraHorizontal),
                 "a cover that is %1 narrower than the page",
                 qint64(m_size.width()) - cover.width())
            .now(now);
    else
        addAdjustment(extra, now);
}

/** The file makes the cover larger, but the library takes more from it for the spine. */
void PxMarginCheck::addAdjustment(int extra, const QString &now) const
{
    const qint64 taken =
        qint64(m_size.width()) + extra - m_product.description().coverSize().width();
    m_report
        .add(PxTag::SpineAdjusted, m_product.element().rangeOf(coverExtraHorizontal),
             "the spine takes %1 from a cover half that is %2 wider than a page", taken, extra)
        .now(now)
        .hint("make it %1 wider at least", taken);
}
