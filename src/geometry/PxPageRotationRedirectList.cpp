#include "geometry/PxPageRotationRedirectList.h"

#include <PxXMLParser.h>

#include <QDomElement>
#include <QString>

#include <algorithm>
#include <iterator>

namespace {

PxPageRotationRedirectList filter(const PxPageRotationRedirectList &list,
                                  int (PxPageRotationRedirect::*pageNr)() const, int page)
{
    PxPageRotationRedirectList filtered;
    std::copy_if(list.begin(), list.end(), std::back_inserter(filtered),
                 [&](const PxPageRotationRedirect &entry) { return (entry.*pageNr)() == page; });
    return filtered;
}

} // namespace

PxPageRotationRedirectList::PxPageRotationRedirectList(const QDomElement &parent)
{
    const QString tag = QStringLiteral("rotationredirect");
    for (QDomElement e = parent.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        const int from = PxXMLParser::intAttribute(e, QStringLiteral("from"), -2);
        const int to = PxXMLParser::intAttribute(e, QStringLiteral("to"), -2);
        if (from < -1 || to < -1)
            continue;
        append({from, to, PxXMLParser::intAttribute(e, QStringLiteral("angleinvert"), 1)});
    }
}

PxPageRotationRedirectList PxPageRotationRedirectList::filterBySourcePage(int page) const
{
    return filter(*this, &PxPageRotationRedirect::sourcePageNr, page);
}

PxPageRotationRedirectList PxPageRotationRedirectList::filterByTargetPage(int page) const
{
    return filter(*this, &PxPageRotationRedirect::targetPageNr, page);
}
