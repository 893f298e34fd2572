#include "check/layout/PxRedirectCheck.h"

#include "check/PxCheckLimits.h"
#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <algorithm>

namespace {

QString pagesText(int first, int last)
{
    return first == last ? QString("page %1").arg(first)
                         : QString("pages %1 to %2").arg(first).arg(last);
}

/** Which of the attributes that it needs are not there. */
QStringList missing(const PxSourceElement &redirect)
{
    QStringList names;
    for (const char *name : {"from", "to"}) {
        if (!redirect.attribute(name))
            names.append(name);
    }
    return names;
}

/** An unknown attribute that looks like none that is missing: nobody knows what it is meant for. */
bool isUnclear(const PxSourceElement &redirect)
{
    const PxElementReading reading(redirect);
    const QStringList names = missing(redirect);
    return !reading.hasOnlyKnown() &&
           std::none_of(names.begin(), names.end(),
                        [&](const QString &name) { return reading.isMisspelt(qPrintable(name)); });
}

QString missingText(const QStringList &names)
{
    return PxMessageText::quotedList(names) +
           (names.size() == 1 ? QLatin1String(" is missing") : QLatin1String(" are missing"));
}

} // namespace

void PxRedirectCheck::run()
{
    const PxSourceElement &product = m_product.element();
    if (const auto *list = product.firstChild("rotationredirects")) {
        for (const auto *redirect : list->childrenNamed("rotationredirect"))
            checkRotation(*redirect);
    }
    if (const auto *list = product.firstChild("contentredirects")) {
        QVector<Range> ranges;
        for (const auto *redirect : list->childrenNamed("contentredirect"))
            checkContent(*redirect, &ranges);
        checkOverlaps(ranges);
    }
}

void PxRedirectCheck::checkRotation(const PxSourceElement &redirect) const
{
    constexpr PxTag tag = PxTag::RotationRedirectIncomplete;
    const QString now = "the redirect is left out";
    const PxElementReading reading(redirect);
    if (isUnclear(redirect) || !reading.isReadable("from") || !reading.isReadable("to"))
        return;
    const QStringList names = missing(redirect);
    if (!names.isEmpty()) {
        const PxMissingPart part = reading.missing(qPrintable(names.constFirst()));
        m_report.add(tag, part.range, missingText(names)).now(now).hint(part.hint);
        return;
    }
    for (const char *name : {"from", "to"}) {
        if (reading.number(name) < -1) {
            m_report.add(tag, redirect.rangeOf(name), "\"%1\" is no page", redirect.value(name))
                .now(now)
                .hint("pages count from 0; -1 is the only number below");
            return;
        }
    }
}

void PxRedirectCheck::checkContent(const PxSourceElement &redirect, QVector<Range> *ranges) const
{
    const PxElementReading reading(redirect);
    if (isUnclear(redirect) || !reading.isReadable("to"))
        return;
    const QString from = redirect.value("from");
    const PxSourceRange place = redirect.rangeOf("from");
    bool hasFirst = false;
    bool hasLast = false;
    const int first = from.section(QLatin1Char('-'), 0, 0).toInt(&hasFirst);
    const int last = from.section(QLatin1Char('-'), -1).toInt(&hasLast);
    const int target = reading.number("to", -1);
    if (!hasFirst || !hasLast || target < 0) {
        checkIncomplete(redirect);
    } else if (first > last) {
        m_report.add(PxTag::ContentRedirectReversed, place, "the range \"%1\" runs backwards", from)
            .now("nothing is redirected")
            .hint(PxSpelling::didYouMean(QString("%1-%2").arg(last).arg(first)));
    } else if (from.count(QLatin1Char('-')) > 1) {
        m_report
            .add(PxTag::ContentRedirectOdd, place, "the range \"%1\" has more than two parts", from)
            .now(pagesText(first, last) + QString(" are redirected to %1").arg(target))
            .hint("write one element for each range");
    } else {
        ranges->append({&redirect, first, last, target});
    }
}

void PxRedirectCheck::checkIncomplete(const PxSourceElement &redirect) const
{
    constexpr PxTag tag = PxTag::ContentRedirectIncomplete;
    const QString now = "the redirect is left out";
    const QString hint = "pages count from 0";
    const QStringList names = missing(redirect);
    const QString from = redirect.value("from");
    const PxMissingPart part =
        names.isEmpty() ? PxMissingPart()
                        : PxElementReading(redirect).missing(qPrintable(names.constFirst()));
    if (!names.isEmpty())
        m_report.add(tag, part.range, missingText(names)).now(now).hint(part.hint);
    else if (PxElementReading(redirect).number("to") < 0)
        m_report.add(tag, redirect.rangeOf("to"), "\"%1\" is no page", redirect.value("to"))
            .now(now)
            .hint(hint);
    else
        m_report
            .add(tag, redirect.rangeOf("from"), "\"%1\" is neither a page nor a range of pages",
                 from)
            .now(now)
            .hint(from.contains(QLatin1Char(','))
                      ? "write one element for each page or range"
                      : "write a page such as \"3\" or a range such as \"3-7\"");
}

/**
 * A range may make an exception inside an earlier one; anything else that takes pages from an
 * earlier range is an oversight.
 */
void PxRedirectCheck::checkOverlaps(const QVector<Range> &ranges) const
{
    for (int i = 1; i < std::min(ranges.size(), PxCheckLimits::redirects); ++i) {
        const Range &later = ranges[i];
        const auto earlier =
            std::find_if(ranges.begin(), ranges.begin() + i, [&](const Range &other) {
                const bool isShared = other.first <= later.last && later.first <= other.last;
                const bool isException = other.first <= later.first && later.last <= other.last &&
                                         later.last - later.first < other.last - other.first;
                return isShared && !isException && other.target != later.target;
            });
        if (earlier == ranges.begin() + i)
            continue;
        const QString pages =
            pagesText(std::max(earlier->first, later.first), std::min(earlier->last, later.last));
        m_report
            .add(PxTag::ContentRedirectOverlap, later.element->rangeOf("from"), "%1: also in %2",
                 pages, m_report.place(earlier->element->nameRange))
            .now("content goes to page %1, not to page %2",
                 m_product.description().contentDropRedirect(std::max(earlier->first, later.first)),
                 earlier->target);
    }
}
