#include "check/findings/PxFindings.h"

#include "check/PxCheckLimits.h"
#include "check/findings/PxReporter.h"
#include "check/words/PxSpelling.h"

#include <algorithm>
#include <cstdlib>
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
bool isOfNameOnly(PxTag tag)
{
    return std::find(std::begin(tagsOfNamesOnly), std::end(tagsOfNamesOnly), tag) !=
           std::end(tagsOfNamesOnly);
}

/** The hint for an allowance of no known tag. */
QString hintFor(const QString &tag)
{
    if (tag.isEmpty())
        return "write the tag that it is for";
    if (tag.contains(QLatin1Char(',')))
        return "write a comment for each tag";
    const QString meant = PxSpelling::hint(tag, PxCheckTags::names());
    return meant.isEmpty() ? "take the comment out" : meant;
}

} // namespace

PxFinding *PxFindings::add(PxTag tag, const PxPlace &place)
{
    const QString name = PxCheckTags::of(tag).name;
    return m_allowances.allows(name, place) ? nullptr : append(tag, place);
}

bool PxFindings::hasRoom(PxTag tag, const QString &path) const
{
    return m_files.value(path).value(tag).listed.size() < PxCheckLimits::findingsOfTag;
}

PxFinding *PxFindings::append(PxTag tag, const PxPlace &place)
{
    const PxCheckTag &row = PxCheckTags::of(tag);
    OfTag &ofTag = m_files[place.path][tag];
    ofTag.severity = m_settings.severities.value(tag, row.severity);
    if (ofTag.listed.size() >= PxCheckLimits::findingsOfTag) {
        ofTag.rest.append({place.line, place.column});
        return nullptr;
    }
    PxFinding finding;
    finding.tag = &row;
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

bool PxFindings::isWanted(PxTag tag) const
{
    return (m_settings.only.isEmpty() || m_settings.only.contains(tag)) &&
           !m_settings.skipped.contains(tag);
}

/** A tag that the user names is seen, whatever its severity. */
bool PxFindings::isSeen(PxTag tag, PxSeverity severity) const
{
    return isWanted(tag) && (m_settings.isPedantic || severity != PxSeverity::Pedantic ||
                             m_settings.only.contains(tag));
}

QString PxFindings::lack(PxTag tag) const
{
    return m_isPartial && PxCheckTags::of(tag).needsCatalogue ? "without the whole catalogue"
                                                              : m_notChecked.value(tag);
}

QVector<PxFinding> PxFindings::sorted() const
{
    PxFindings left = *this;
    for (const PxAllowances::Allowance &allowance : m_allowances.unused())
        left.addUnused(allowance);
    QVector<PxFinding> sorted;
    for (auto file = left.m_files.begin(); file != left.m_files.end(); ++file) {
        removeUnwanted(&*file);
        // Last: a finding that nobody wants to see hides no other, though an allowance may.
        removeCauses(&*file);
        for (auto it = file->constBegin(); it != file->constEnd(); ++it) {
            sorted += it->listed;
            if (!it->rest.isEmpty())
                sorted.append(summary(file.key(), it.key(), *it));
        }
    }
    std::sort(sorted.begin(), sorted.end(), isBefore);
    return sorted;
}

PxFinding PxFindings::summary(const QString &path, PxTag tag, const OfTag &findings)
{
    const Spot first = *std::min_element(findings.rest.begin(), findings.rest.end());
    PxFinding summary;
    summary.tag = &PxCheckTags::of(tag);
    summary.severity = findings.severity;
    summary.place = {path, first.line, first.column, first.line, first.column};
    summary.setRest(findings.rest.size());
    return summary;
}

void PxFindings::removeUnwanted(OfFile *file) const
{
    for (auto it = file->begin(); it != file->end();) {
        it = isSeen(it.key(), it->severity) ? std::next(it) : file->erase(it);
    }
}

/**
 * A name that is not read, and what is missing because of it, are one mistake at one place: only
 * the consequence is reported, unless it matters less.
 */
void PxFindings::removeCauses(OfFile *file)
{
    if (std::none_of(file->keyBegin(), file->keyEnd(), isOfNameOnly))
        return;
    const QVector<Worst> worst = worstOf(*file);
    for (auto it = file->begin(); it != file->end(); ++it) {
        const bool isOfName = isOfNameOnly(it.key());
        const auto isLeftOut = [&](const Spot &spot) {
            const auto at =
                std::lower_bound(worst.begin(), worst.end(), spot,
                                 [](const Worst &w, const Spot &s) { return w.spot < s; });
            return at->name >= 0 && (at->name > at->consequence) != isOfName;
        };
        const auto isFindingLeftOut = [&](const PxFinding &finding) {
            return isLeftOut({finding.place.line, finding.place.column});
        };
        it->listed.erase(std::remove_if(it->listed.begin(), it->listed.end(), isFindingLeftOut),
                         it->listed.end());
        it->rest.erase(std::remove_if(it->rest.begin(), it->rest.end(), isLeftOut), it->rest.end());
    }
}

/** Each spot once, sorted. */
QVector<PxFindings::Worst> PxFindings::worstOf(const OfFile &file)
{
    QVector<Worst> all;
    for (auto it = file.begin(); it != file.end(); ++it) {
        Worst worst;
        (isOfNameOnly(it.key()) ? worst.name : worst.consequence) = int(it->severity);
        for (const PxFinding &finding : it->listed) {
            worst.spot = {finding.place.line, finding.place.column};
            all.append(worst);
        }
        for (const Spot &spot : it->rest) {
            worst.spot = spot;
            all.append(worst);
        }
    }
    std::sort(all.begin(), all.end(),
              [](const Worst &a, const Worst &b) { return a.spot < b.spot; });
    QVector<Worst> merged;
    for (const Worst &worst : qAsConst(all)) {
        if (merged.isEmpty() || merged.constLast().spot < worst.spot)
            merged.append(worst);
        Worst &last = merged.last();
        last.name = qMax(last.name, worst.name);
        last.consequence = qMax(last.consequence, worst.consequence);
    }
    return merged;
}

/** Appended, not added: no allowance silences itself or another one. */
void PxFindings::addUnused(const PxAllowances::Allowance &allowance)
{
    const PxCheckTag *tag = PxCheckTags::find(allowance.tag);
    if (tag && (m_settings.skipped.contains(tag->tag) || !lack(tag->tag).isEmpty()))
        return; // nobody knows what it would silence
    const char *message = allowance.tag.isEmpty() ? "the allowance names no tag"
                          : tag                   ? "nothing here is \"%1\""
                                                  : "there is no tag \"%1\" to allow";
    const int line = tag ? nearestLine(tag->tag, allowance.comment) : 0;
    PxAddedFinding(append(PxTag::AllowanceUnused, allowance.comment))
        .message(message, allowance.tag)
        .now("the comment silences nothing")
        .hint([&] {
            return line > 0 ? QString("move it to line %1, before what it is for").arg(line)
                   : tag    ? QString("take the comment out")
                            : hintFor(allowance.tag);
        })
        .replacement(tag && line == 0 ? "" : QString());
}

/** The line of the finding that a comment is probably for; 0 if there is none in the file. */
int PxFindings::nearestLine(PxTag tag, const PxPlace &comment) const
{
    const QVector<PxFinding> listed = m_files.value(comment.path).value(tag).listed;
    const auto nearest =
        std::min_element(listed.begin(), listed.end(), [&](const auto &a, const auto &b) {
            return std::abs(a.place.line - comment.line) < std::abs(b.place.line - comment.line);
        });
    return nearest == listed.end() ? 0 : nearest->place.line;
}

QSet<QString> PxFindings::tagsChecked() const
{
    QSet<QString> tags;
    for (const PxCheckTag *tag : PxCheckTags::all()) {
        const PxSeverity severity = m_settings.severities.value(tag->tag, tag->severity);
        if (isSeen(tag->tag, severity) && lack(tag->tag).isEmpty())
            tags.insert(tag->name);
    }
    return tags;
}

QMap<QString, QString> PxFindings::tagsNotChecked() const
{
    QMap<QString, QString> tags;
    for (const PxCheckTag *tag : PxCheckTags::all()) {
        if (!lack(tag->tag).isEmpty() && isWanted(tag->tag))
            tags.insert(tag->name, lack(tag->tag));
    }
    return tags;
}
