#include "check/layout/PxRedirectCheck.h"

#include "check/PxCheckLimits.h"
#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <algorithm>

namespace {

constexpr const char *leftOut = "the redirect is left out";

QString pagesText(int first, int last)
{
    return first == last ? QString("page %1").arg(first)
                         : QString("pages %1 to %2").arg(first).arg(last);
}

QString fromText(int first, int last)
{
    return first == last ? QString::number(first) : QString("%1-%2").arg(first).arg(last);
}

/** Whether an unknown attribute may be meant for a missing one, but looks like none. */
bool isUnclear(const PxElementReading &reading)
{
    const QStringList names = reading.missingOf({"from", "to"});
    return !reading.hasOnlyKnown() &&
           std::none_of(names.begin(), names.end(),
                        [&](const QString &name) { return reading.isMisspelt(qPrintable(name)); });
}

} // namespace

void PxRedirectCheck::run()
{
    const PxSourceElement &product = m_product.element();
    if (const auto *list = product.firstChild("rotationredirects")) {
        QVector<const PxSourceElement *> kept;
        for (const auto *redirect : list->childrenNamed("rotationredirect")) {
            if (checkRotation(*redirect))
                kept.append(redirect);
        }
        checkRotationPages(kept);
    }
    if (const auto *list = product.firstChild("contentredirects")) {
        QVector<Range> ranges;
        for (const auto *redirect : list->childrenNamed("contentredirect"))
            checkContent(*redirect, &ranges);
        checkContentPages(ranges);
        checkOverlaps(ranges);
    }
}

bool PxRedirectCheck::checkRotation(const PxSourceElement &redirect) const
{
    constexpr PxTag tag = PxTag::RotationRedirectIncomplete;
    const PxElementReading reading(redirect);
    if (isUnclear(reading) || !reading.isReadable("from") || !reading.isReadable("to"))
        return false;
    if (checkGiven(tag, reading))
        return false;
    for (const char *name : {"from", "to"}) {
        if (reading.number(name) < -1) {
            m_report.add(tag, redirect.rangeOf(name), "\"%1\" is no page", redirect.value(name))
                .now(leftOut)
                .hint("pages count from 0; -1 is the only number below");
            return false;
        }
    }
    return true;
}

void PxRedirectCheck::checkRotationPages(const QVector<const PxSourceElement *> &redirects) const
{
    QVector<int> numbers;
    for (const PxSourceElement *redirect : redirects) {
        for (const char *name : {"from", "to"}) {
            if (redirect->number(name) != -1)
                numbers.append(redirect->number(name));
        }
    }
    const PxPageNumberCheck check(m_pages, numbers, m_report);
    for (const PxSourceElement *redirect : redirects) {
        for (const char *name : {"from", "to"}) {
            const int number = redirect->number(name);
            if (!check.isMissing(number))
                continue;
            PxAddedFinding finding = check.add(number, redirect->rangeOf(name));
            finding.now("the redirect is kept, and \"%1\" is no page", name);
            if (check.areFromOne())
                finding.hint("pages count from 0: from=\"%1\" to=\"%2\"",
                             check.fromZero(redirect->number("from")),
                             check.fromZero(redirect->number("to")));
        }
    }
}

/** Whether it found that "from" or "to" is missing. */
bool PxRedirectCheck::checkGiven(PxTag tag, const PxElementReading &redirect) const
{
    const QStringList names = redirect.missingOf({"from", "to"});
    if (names.isEmpty())
        return false;
    const PxMissingPart first = redirect.missing(qPrintable(names.constFirst()));
    m_report
        .add(tag, first.range, names.size() == 1 ? "%1 is missing" : "%1 are missing",
             PxMessageText::quotedList(names))
        .now(leftOut)
        .hint(first.hint);
    return true;
}

void PxRedirectCheck::checkContent(const PxSourceElement &redirect, QVector<Range> *ranges) const
{
    const PxElementReading reading(redirect);
    if (isUnclear(reading) || !reading.isReadable("to"))
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
    const PxElementReading reading(redirect);
    if (checkGiven(tag, reading))
        return;
    const QString from = redirect.value("from");
    if (reading.number("to") < 0)
        m_report.add(tag, redirect.rangeOf("to"), "\"%1\" is no page", redirect.value("to"))
            .now(leftOut)
            .hint("pages count from 0");
    else
        m_report
            .add(tag, redirect.rangeOf("from"), "\"%1\" is neither a page nor a range of pages",
                 from)
            .now(leftOut)
            .hint(from.contains(QLatin1Char(','))
                      ? "write one element for each page or range"
                      : "write a page such as \"3\" or a range such as \"3-7\"");
}

void PxRedirectCheck::checkContentPages(const QVector<Range> &ranges) const
{
    QVector<int> numbers;
    for (const Range &range : ranges)
        numbers << range.first << range.last << range.target;
    const PxPageNumberCheck check(m_pages, numbers, m_report);
    for (const Range &range : ranges) {
        const auto add = [&](const char *name, int number, const QString &now) {
            PxAddedFinding finding = check.add(number, range.element->rangeOf(name));
            finding.now(now);
            if (check.areFromOne())
                finding.hint("pages count from 0: from=\"%1\" to=\"%2\"",
                             fromText(check.fromZero(range.first), check.fromZero(range.last)),
                             check.fromZero(range.target));
        };
        if (check.isMissing(range.first))
            add("from", range.first, "nothing is redirected");
        else if (check.isMissing(range.last))
            add("from", range.last,
                QString("%1 are redirected to %2")
                    .arg(pagesText(range.first, m_pages.lastPage()))
                    .arg(range.target));
        if (check.isMissing(range.target))
            add("to", range.target,
                QString("content goes to page %1, which is none").arg(range.target));
    }
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
