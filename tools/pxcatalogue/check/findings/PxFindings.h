#pragma once

#include "check/findings/PxAllowances.h"
#include "check/findings/PxCheckTags.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

/** Collects findings and keeps those that the author wants to see. */
class PxFindings
{
public:
    /**
     * Silences a tag in a part of a file, as the comment at `comment` says, for what is added after
     * it. When there is nothing to silence, that is a finding of its own, unless the file cannot be
     * checked for all tags.
     */
    void allow(const QString &tag, const PxPlace &comment, const PxPlace &part, bool isChecked);
    /** Not all files of the catalogue are checked. */
    void setPartial(bool isPartial) { m_isPartial = isPartial; }
    /** A tag cannot be checked; `lack` is what is not there for it, as in "without themes". */
    void setNotChecked(PxTag tag, const QString &lack)
    {
        m_notChecked[&PxCheckTags::of(tag)] = lack;
    }

    void setSeverity(const QString &tag, PxSeverity severity) { m_severities[tag] = severity; }
    /** Only these tags; all when none are named. */
    void setOnly(const QStringList &tags) { m_only = QSet<QString>(tags.begin(), tags.end()); }
    void setSkipped(const QStringList &tags)
    {
        m_excluded = QSet<QString>(tags.begin(), tags.end());
    }
    /** Matters of style are left out unless asked for. */
    void setPedantic(bool isPedantic) { m_isPedantic = isPedantic; }

    /** What is left, by path, line, column and tag. */
    QVector<PxFinding> sorted() const;
    /** By tag, those that could be wanted, and what is not there for them. */
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

    /** Null if an allowance silences it, or there are so many that it is only counted. */
    PxFinding *add(PxTag tag, const PxPlace &place);
    bool hasRoom(PxTag tag, const QString &path) const;
    PxFinding *append(const PxCheckTag &tag, const PxPlace &place);
    bool isWanted(const QString &tag) const;
    /** Empty for a tag that is checked. */
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
