#include "check/findings/PxFindings.h"

#include "check/PxCheckLimits.h"
#include "check/findings/PxReporter.h"
#include "check/words/PxSpelling.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

constexpr PxTag tagsOfNamesOnly[] = {PxTag::AttributeUnknown, PxTag::ElementMisplaced,
                                     PxTag::ElementUnknown, PxTag::TextNotRead};

bool isBefore(const PxFinding &a, const PxFinding &b)
{
    const auto key = [](const PxFinding &f) {
        return std::make_tuple(f.place.path, f.place.line, f.place.column,
                               QLatin1String(f.tag->name), f.restCount, f.message, f.now, f.hint);
    };
    return key(a) < key(b);
}

/** Whether the tag only says that something is not read, not what is missing as a consequence. */
bool isOfNameOnly(const PxCheckTag *tag)
{
    return std::find(std::begin(tagsOfNamesOnly), std::end(tagsOfNamesOnly), tag->tag) !=
           std::end(tagsOfNamesOnly);
}

/** The hint for an allowance that silences nothing. */
QString hintFor(const QString &tag)
{
    if (tag.isEmpty())
        return "write the tag that it is for";
    if (PxCheckTags::find(tag))
        return "take the comment out";
    if (tag.contains(QLatin1Char(',')))
        return "write a comment for each tag";
    const QString meant = PxSpelling::hint(tag, PxCheckTags::names());
    return meant.isEmpty() ? "take the comment out" : meant;
}

} // namespace

PxFinding *PxFindings::add(PxTag tag, const PxPlace &place)
{
    const PxCheckTag &row = PxCheckTags::of(tag);
    return m_allowances.allows(QLatin1String(row.name), place) ? nullptr : append(row, place);
}

bool PxFindings::hasRoom(PxTag tag, const QString &path) const
{
    return m_findings.value({path, &PxCheckTags::of(tag)}).listed.size() <
           PxCheckLimits::findingsOfTag;
}

PxFinding *PxFindings::append(const PxCheckTag &tag, const PxPlace &place)
{
    OfTag &ofTag = m_findings[{place.path, &tag}];
    ofTag.severity = m_severities.value(QLatin1String(tag.name), tag.severity);
    if (ofTag.listed.size() >= PxCheckLimits::findingsOfTag) {
        ofTag.rest.append({place.line, place.column});
        return nullptr;
    }
    PxFinding finding;
    finding.tag = &tag;
    finding.severity = ofTag.severity;
    finding.place = place;
    ofTag.listed.append(finding);
    return &ofTag.listed.last();
}

void PxFindings::allow(const QString &tag, const PxPlace &comment, const PxPlace &part,
                       bool isChecked)
{
    // In a file that is not checked for everything, an allowance may silence any tag that exists.
    m_allowances.add({tag, comment, part, !isChecked && PxCheckTags::find(tag)});
}

bool PxFindings::isWanted(const QString &tag) const
{
    return (m_only.isEmpty() || m_only.contains(tag)) && !m_excluded.contains(tag);
}

QString PxFindings::lack(const PxCheckTag &tag) const
{
    return m_isPartial && tag.needsCatalogue ? "without the whole catalogue"
                                             : m_notChecked.value(&tag);
}

QVector<PxFinding> PxFindings::sorted() const
{
    PxFindings left = *this;
    for (const PxAllowances::Allowance &allowance : m_allowances.unused())
        left.addUnused(allowance);
    left.removeUnwanted();
    QSet<QString> paths;
    for (auto it = left.m_findings.constBegin(); it != left.m_findings.constEnd(); ++it) {
        if (isOfNameOnly(it.key().second))
            paths.insert(it.key().first);
    }
    // Last, because findings that the user does not want to see must not hide others.
    for (const QString &path : qAsConst(paths))
        left.removeCauses(path);
    QVector<PxFinding> sorted;
    for (auto it = left.m_findings.constBegin(); it != left.m_findings.constEnd(); ++it) {
        sorted += it->listed;
        if (it->rest.isEmpty())
            continue;
        const Spot first = *std::min_element(it->rest.begin(), it->rest.end());
        PxFinding rest;
        rest.tag = it.key().second;
        rest.severity = it->severity;
        rest.place = {it.key().first, first.line, first.column, first.line, first.column};
        rest.setRest(it->rest.size());
        sorted.append(rest);
    }
    std::sort(sorted.begin(), sorted.end(), isBefore);
    return sorted;
}

void PxFindings::removeUnwanted()
{
    for (auto it = m_findings.begin(); it != m_findings.end();) {
        if (isWanted(QLatin1String(it.key().second->name)) &&
            (m_isPedantic || it->severity != PxSeverity::Pedantic))
            ++it;
        else
            it = m_findings.erase(it);
    }
}

/**
 * An unknown name and what is missing because of it are one mistake with findings at the same
 * place. Keeps only the consequence, unless the unknown name is more severe.
 */
void PxFindings::removeCauses(const QString &path)
{
    struct Mark
    {
        Spot spot;
        int worst[2] = {-1, -1}; // severity of the consequences, and of the names
    };
    const auto isBefore = [](const Mark &a, const Mark &b) { return a.spot < b.spot; };
    QVector<Mark> marks;
    for (auto it = m_findings.constBegin(); it != m_findings.constEnd(); ++it) {
        if (it.key().first != path)
            continue;
        Mark mark;
        mark.worst[isOfNameOnly(it.key().second)] = int(it->severity);
        for (const PxFinding &finding : it->listed) {
            mark.spot = {finding.place.line, finding.place.column};
            marks.append(mark);
        }
        for (const Spot &spot : it->rest) {
            mark.spot = spot;
            marks.append(mark);
        }
    }
    std::sort(marks.begin(), marks.end(), isBefore);
    QVector<Mark> places; // each place once
    for (const Mark &mark : qAsConst(marks)) {
        if (places.isEmpty() || isBefore(places.constLast(), mark))
            places.append(mark);
        for (int i = 0; i < 2; ++i)
            places.last().worst[i] = qMax(places.constLast().worst[i], mark.worst[i]);
    }
    for (auto it = m_findings.begin(); it != m_findings.end(); ++it) {
        if (it.key().first != path)
            continue;
        const bool isOfName = isOfNameOnly(it.key().second);
        const auto isLeftOut = [&](const Spot &spot) {
            const auto place = std::lower_bound(places.begin(), places.end(), Mark{spot}, isBefore);
            return place->worst[1] >= 0 && (place->worst[1] > place->worst[0]) != isOfName;
        };
        it->listed.erase(
            std::remove_if(it->listed.begin(), it->listed.end(),
                           [&](const PxFinding &finding) {
                               return isLeftOut({finding.place.line, finding.place.column});
                           }),
            it->listed.end());
        it->rest.erase(std::remove_if(it->rest.begin(), it->rest.end(), isLeftOut), it->rest.end());
    }
}

/** Appends the finding without asking the allowances, so that none silences itself or another. */
void PxFindings::addUnused(const PxAllowances::Allowance &allowance)
{
    const PxCheckTag *tag = PxCheckTags::find(allowance.tag);
    if (tag && (m_excluded.contains(allowance.tag) || !lack(*tag).isEmpty()))
        return; // what it would silence was not checked
    const char *message = allowance.tag.isEmpty() ? "the allowance names no tag"
                          : tag                   ? "nothing here is \"%1\""
                                                  : "there is no tag \"%1\" to allow";
    PxAddedFinding(append(PxCheckTags::of(PxTag::AllowanceUnused), allowance.comment))
        .message(message, allowance.tag)
        .now("the comment silences nothing")
        .hint([&] { return hintFor(allowance.tag); });
}

QMap<QString, QString> PxFindings::tagsNotChecked() const
{
    QMap<QString, QString> tags;
    for (const PxCheckTag *tag : PxCheckTags::all()) {
        if (!lack(*tag).isEmpty() && isWanted(QLatin1String(tag->name)))
            tags.insert(QLatin1String(tag->name), lack(*tag));
    }
    return tags;
}
