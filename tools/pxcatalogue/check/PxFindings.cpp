#include "check/PxFindings.h"

#include "check/PxCheckTags.h"
#include "check/PxSpelling.h"

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
                               QLatin1String(f.tag->name), f.message, f.now, f.hint);
    };
    return key(a) < key(b);
}

bool isAtSamePlace(const PxFinding &a, const PxFinding &b)
{
    return a.place.path == b.place.path && a.place.line == b.place.line &&
           a.place.column == b.place.column;
}

/** Says that something is not read, and not what the product or theme lacks for it. */
bool isOfNameOnly(const PxFinding &finding)
{
    return std::any_of(std::begin(tagsOfNamesOnly), std::end(tagsOfNamesOnly),
                       [&](const char *tag) { return qstrcmp(tag, finding.tag->name) == 0; });
}

/**
 * A name that is not read, and what is missing for it, are one mistake and stand at one place: the
 * consequence is told, unless it matters less. The findings are sorted.
 */
QVector<PxFinding> withoutCauses(const QVector<PxFinding> &findings)
{
    QVector<PxFinding> left;
    for (auto first = findings.begin(); first != findings.end();) {
        const auto last = std::find_if(first, findings.end(), [&](const PxFinding &finding) {
            return !isAtSamePlace(*first, finding);
        });
        int worst[] = {-1, -1}; // of the consequences, and of the names
        for (auto finding = first; finding != last; ++finding) {
            int &severity = worst[isOfNameOnly(*finding)];
            severity = std::max(severity, int(finding->severity));
        }
        const bool areNamesTold = worst[1] > worst[0];
        std::copy_if(first, last, std::back_inserter(left), [&](const PxFinding &finding) {
            return worst[1] < 0 || isOfNameOnly(finding) == areNamesTold;
        });
        first = last;
    }
    return left;
}

} // namespace

void PxFindings::add(const char *tag, const PxPlace &place, const QString &message,
                     const QString &now, const QString &hint)
{
    PxFinding finding;
    finding.tag = PxCheckTags::find(QLatin1String(tag));
    if (!finding.tag)
        throw std::logic_error(std::string("there is no tag ") + tag);
    finding.severity = m_severities.value(QLatin1String(tag), finding.tag->severity);
    finding.place = place;
    finding.message = message;
    finding.now = now;
    finding.hint = hint;
    m_findings.append(finding);
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
    std::sort(left.m_findings.begin(), left.m_findings.end(), isBefore);
    const QVector<PxAllowances::Allowance> unused = m_allowances.apply(&left.m_findings);
    for (const PxAllowances::Allowance &allowance : unused)
        left.addUnused(allowance);
    QVector<PxFinding> wanted;
    std::copy_if(left.m_findings.begin(), left.m_findings.end(), std::back_inserter(wanted),
                 [this](const PxFinding &finding) {
                     return isWanted(QLatin1String(finding.tag->name)) &&
                            (m_isPedantic || finding.severity != PxSeverity::Pedantic);
                 });
    std::sort(wanted.begin(), wanted.end(), isBefore);
    // Not before: what is not told stands for nothing, and an allowance is of use all the same.
    return withoutCauses(wanted);
}

void PxFindings::addUnused(const PxAllowances::Allowance &allowance)
{
    constexpr const char *unused = "allowance-unused";
    const PxCheckTag *tag = PxCheckTags::find(allowance.tag);
    const QString now = QStringLiteral("the comment silences nothing");
    if (allowance.tag.isEmpty()) {
        add(unused, allowance.comment, QStringLiteral("the allowance names no tag"), now,
            QStringLiteral("write the tag that it is for"));
    } else if (!tag) {
        const QString hint = allowance.tag.contains(QLatin1Char(','))
                                 ? QStringLiteral("write a comment for each tag")
                                 : PxSpelling::hint(allowance.tag, PxCheckTags::names());
        add(unused, allowance.comment,
            QStringLiteral("there is no tag \"%1\" to allow").arg(allowance.tag), now,
            hint.isEmpty() ? QStringLiteral("take the comment out") : hint);
    } else if (!m_excluded.contains(allowance.tag) && lack(*tag).isEmpty()) { // else nobody knows
        add(unused, allowance.comment, QStringLiteral("nothing here is \"%1\"").arg(allowance.tag),
            now, QStringLiteral("take the comment out"));
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
