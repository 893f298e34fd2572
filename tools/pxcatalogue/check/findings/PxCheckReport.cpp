#include "check/findings/PxCheckReport.h"

void PxCheckReport::joinCauses()
{
    QVector<PxFinding> joined;
    QMap<QPair<PxTag, QString>, int> first; // indexes in `joined`
    for (const PxFinding &finding : qAsConst(findings)) {
        const QPair<PxTag, QString> cause(finding.tag->tag, finding.text());
        const bool isJoinable = finding.tag->isOfOneCause && finding.restCount == 0;
        if (isJoinable && first.contains(cause)) {
            ++joined[first.value(cause)].otherPlaces;
            continue;
        }
        if (isJoinable)
            first.insert(cause, joined.size());
        joined.append(finding);
    }
    findings = joined;
}
