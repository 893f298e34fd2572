#pragma once

#include "check/findings/PxAllowances.h"
#include "check/findings/PxCheckTags.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

/** Collects findings and filters out those that the user does not want to see. */
class PxFindings
{
public:
    /**
     * Silences a tag in a part of a file for all findings that are added later. `comment` is the
     * place of the comment that asks for it. An allowance that silences nothing becomes a finding
     * if `isChecked`, which means that all checks run on the file.
     */
    void allow(const QString &tag, const PxPlace &comment, const PxPlace &part, bool isChecked);
    /** Whether only some files of the catalogue are checked. */
    void setPartial(bool isPartial) { m_isPartial = isPartial; }
    /** The tag cannot be checked. `lack` says what is missing, such as "without themes". */
    void setNotChecked(PxTag tag, const QString &lack)
    {
        m_notChecked[&PxCheckTags::of(tag)] = lack;
    }

    void setSeverity(const QString &tag, PxSeverity severity) { m_severities[tag] = severity; }
    /** Reports only these tags, or all if the list is empty. */
    void setOnly(const QStringList &tags) { m_only = QSet<QString>(tags.begin(), tags.end()); }
    void setSkipped(const QStringList &tags)
    {
        m_excluded = QSet<QString>(tags.begin(), tags.end());
    }
    /** Reports matters of style, too. */
    void setPedantic(bool isPedantic) { m_isPedantic = isPedantic; }

    /** The findings to report, sorted by path, line, column and tag. */
    QVector<PxFinding> sorted() const;
    /** The tags that were wanted but not checked, and what their checks lacked. */
    QMap<QString, QString> tagsNotChecked() const;

private:
    friend class PxReporter;

    struct Spot
    {
        int line = 1;
        int column = 1;

        bool operator<(const Spot &other) const
        {
            return line < other.line || (line == other.line && column < other.column);
        }
    };
    /** The findings of one tag in one file. */
    struct OfTag
    {
        PxSeverity severity = PxSeverity::Error;
        QVector<PxFinding> listed;
        QVector<Spot> rest; ///< those that are only counted
    };
    using Key = QPair<QString, const PxCheckTag *>; // path and tag

    /** Null if an allowance silences the finding, or if it is only counted. */
    PxFinding *add(PxTag tag, const PxPlace &place);
    bool hasRoom(PxTag tag, const QString &path) const;
    PxFinding *append(const PxCheckTag &tag, const PxPlace &place);
    bool isWanted(const QString &tag) const;
    /** What the check for the tag lacks; empty if the tag is checked. */
    QString lack(const PxCheckTag &tag) const;
    void addUnused(const PxAllowances::Allowance &allowance);
    void removeUnwanted();
    void removeCauses(const QString &path);

    QHash<Key, OfTag> m_findings;
    PxAllowances m_allowances;
    QHash<QString, PxSeverity> m_severities;
    QSet<QString> m_only;
    QSet<QString> m_excluded;
    QHash<const PxCheckTag *, QString> m_notChecked;
    bool m_isPedantic = false;
    bool m_isPartial = false;
};
