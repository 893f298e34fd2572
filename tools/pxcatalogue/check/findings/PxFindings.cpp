#include "check/findings/PxFindings.h"

#include "check/findings/PxCheckTags.h"
#include "check/words/PxSpelling.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <tuple>

namespace {

constexpr const char *tagsOfNamesOnly[] = {"attribute-unknown", "element-misplaced",
                                           "element-unknown", "text-not-read"};

bool isBefore(const PxFinding &a, const PxFinding &b)
{
    const auto key = [](const PxFinding &f) {
        return std::make_tuple(f.place.path, f.place.line, f.place.column,
                               QLatin1String(f.tag->name), f.restCount, f.message, f.now, f.hint);
    };
    return key(a) < key(b);
}

/** Says that something is not read, and not what the product or theme lacks for it. */
bool isOfNameOnly(const PxCheckTag *tag)
{
    return std::any_of(std::begin(tagsOfNamesOnly), std::end(tagsOfNamesOnly),
                       [&](const char *name) { return qstrcmp(name, tag->name) == 0; });
}

QString shortened(const QString &text)
{
    return text.size() <= PxFindings::maximumLength
               ? text
               : text.left(PxFindings::maximumLength) + QStringLiteral("…");
}

} // namespace

void PxFindings::add(const char *tag, const PxPlace &place, const QString &message,
                     const QString &now, const QString &hint)
{
    const PxCheckTag *found = PxCheckTags::find(QLatin1String(tag));
    if (!found)
        throw std::logic_error(std::string("there is no tag ") + tag);
    if (!m_allowances.allows(QLatin1String(tag), place))
        append(found, place, message, now, hint);
}

void PxFindings::append(const PxCheckTag *tag, const PxPlace &place, const QString &message,
                        const QString &now, const QString &hint)
{
    OfTag &ofTag = m_findings[{place.path, tag}];
    ofTag.severity = m_severities.value(QLatin1String(tag->name), tag->severity);
    if (ofTag.told.size() < maximumOfTag)
        ofTag.told.append(
            {tag, ofTag.severity, place, shortened(message), shortened(now), shortened(hint)});
    else
        ofTag.rest.append({place.line, place.column});
}

bool PxFindings::isTold(const char *tag, const PxPlace &place)
{
    return hasRoom(PxCheckTags::find(QLatin1String(tag)), place.path) &&
           !m_allowances.allows(QLatin1String(tag), place);
}

bool PxFindings::hasRoom(const PxCheckTag *tag, const QString &path) const
{
    const auto found = m_findings.constFind({path, tag});
    return found == m_findings.constEnd() || found->told.size() < maximumOfTag;
}

void PxFindings::allow(const QString &tag, const PxPlace &comment, const PxPlace &part,
                       bool isChecked)
{
    // One for no tag at all is of no use anywhere.
    m_allowances.add({tag, comment, part, !isChecked && PxCheckTags::find(tag)});
}

bool PxFindings::isWanted(const QString &tag) const
{
    return (m_only.isEmpty() || m_only.contains(tag)) && !m_excluded.contains(tag);
}

QString PxFindings::lack(const PxCheckTag &tag) const
{
    return m_isPartial && tag.needsCatalogue ? QStringLiteral("without the whole catalogue")
                                             : m_notChecked.value(QLatin1String(tag.name));
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
    // Not before: what is not told stands for nothing, and an allowance is of use all the same.
    for (const QString &path : qAsConst(paths))
        left.removeCauses(path);
    QVector<PxFinding> sorted;
    for (auto it = left.m_findings.constBegin(); it != left.m_findings.constEnd(); ++it) {
        sorted += it->told;
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
 * A name that is not read, and what is missing for it, are one mistake and stand at one place: the
 * consequence is told, unless it matters less.
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
        for (const PxFinding &finding : it->told) {
            mark.spot = {finding.place.line, finding.place.column};
            marks.append(mark);
        }
        for (const Spot &spot : it->rest) {
            mark.spot = spot;
            marks.append(mark);
        }
    }
    std::sort(marks.begin(), marks.end(), isBefore);
    QVector<Mark> places; // each once
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
        it->told.erase(
            std::remove_if(it->told.begin(), it->told.end(),
                           [&](const PxFinding &finding) {
                               return isLeftOut({finding.place.line, finding.place.column});
                           }),
            it->told.end());
        it->rest.erase(std::remove_if(it->rest.begin(), it->rest.end(), isLeftOut), it->rest.end());
    }
}

/** An allowance does not allow itself, nor another one. */
void PxFindings::addUnused(const PxAllowances::Allowance &allowance)
{
    const PxCheckTag *unused = PxCheckTags::find(QStringLiteral("allowance-unused"));
    const PxPlace &place = allowance.comment;
    const PxCheckTag *tag = PxCheckTags::find(allowance.tag);
    const QString now = QStringLiteral("the comment silences nothing");
    if (allowance.tag.isEmpty()) {
        append(unused, place, QStringLiteral("the allowance names no tag"), now,
               QStringLiteral("write the tag that it is for"));
    } else if (!tag) {
        QString hint;
        if (hasRoom(unused, place.path))
            hint = allowance.tag.contains(QLatin1Char(','))
                       ? QStringLiteral("write a comment for each tag")
                       : PxSpelling::hint(allowance.tag, PxCheckTags::names());
        append(unused, place, QStringLiteral("there is no tag \"%1\" to allow").arg(allowance.tag),
               now, hint.isEmpty() ? QStringLiteral("take the comment out") : hint);
    } else if (!m_excluded.contains(allowance.tag) && lack(*tag).isEmpty()) { // else nobody knows
        append(unused, place, QStringLiteral("nothing here is \"%1\"").arg(allowance.tag), now,
               QStringLiteral("take the comment out"));
    }
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
