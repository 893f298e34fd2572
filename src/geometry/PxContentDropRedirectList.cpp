#include "geometry/PxContentDropRedirectList.h"

#include <PxMessage.h>
#include <PxMessageLimit.h>
#include <PxXMLParser.h>

#include <QDomElement>
#include <QString>

#include <algorithm>

PxContentDropRedirectList::PxContentDropRedirectList(const QDomElement &parent)
{
    const QString tag = QStringLiteral("contentredirect");
    int unreadable = 0;
    for (QDomElement e = parent.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        // Only pages from 0 can be read: before the "-" of a negative page the first part is empty.
        const QString from = e.attribute(QStringLiteral("from"));
        bool hasFirst;
        bool hasLast;
        const int first = from.leftRef(from.indexOf(QLatin1Char('-'))).toInt(&hasFirst);
        const int last = from.midRef(from.lastIndexOf(QLatin1Char('-')) + 1).toInt(&hasLast);
        const int target = PxXMLParser::intAttribute(e, QStringLiteral("to"), -1);
        if (!hasFirst || !hasLast || last < 0 || target < 0) {
            if (++unreadable <= pxMaximumMessages)
                PxMessageLogger("PxContentDropRedirectList", __LINE__, Q_FUNC_INFO).warning()
                    << "PxContentDropRedirectList::PxContentDropRedirectList parse error";
            continue;
        }
        if (first <= last)
            m_ranges.append({first, last, target});
    }
    if (unreadable > pxMaximumMessages)
        pxWarning() << "PxContentDropRedirectList::PxContentDropRedirectList"
                    << unreadable - pxMaximumMessages << "more parse errors";
}

int PxContentDropRedirectList::targetPage(int page) const
{
    // Searched from the back, because a later element overrides an earlier one.
    const auto range =
        std::find_if(m_ranges.crbegin(), m_ranges.crend(), [page](const Range &candidate) {
            return candidate.first <= page && page <= candidate.last;
        });
    return range == m_ranges.crend() ? page : range->target;
}
