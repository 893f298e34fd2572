#pragma once

#include "check/findings/PxAllowances.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

/** Collects findings and keeps those that the author wants to see. */
class PxFindings
{
public:
    /** Of one tag in one file so many are told; how many more there are is the last one. */
    static constexpr int maximumOfTag = 100;
    /** A longer message is cut off: a file may hold a single name of eight million letters. */
    static constexpr int maximumLength = 1000;

    /** The tag is one of PxCheckTags; else that is a fault of ours, and thrown. */
    void add(const char *tag, const PxPlace &place, const QString &message,
             const QString &now = QString(), const QString &hint = QString());
    /**
     * Whether one more is told at the place. If not, it is allowed or only counted, and its texts
     * need not be looked for.
     */
    bool isTold(const char *tag, const PxPlace &place);
    /**
     * Silences a tag in a part of a file, as the comment at `comment` says, for what is added after
     * it. When there is nothing to silence, that is a finding of its own, unless the file cannot be
     * checked for all tags.
     */
    void allow(const QString &tag, const PxPlace &comment, const PxPlace &part, bool isChecked);
    /** Not all files of the catalogue are checked. */
    void setPartial(bool isPartial) { m_isPartial = isPartial; }
    /** A tag cannot be checked; `lack` is what is not there for it, as in "without themes". */
    void setNotChecked(const QString &tag, const QString &lack) { m_notChecked[tag] = lack; }

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
        QVector<PxFinding> told;
        QVector<Spot> rest;
    };
    using Key = QPair<QString, const PxCheckTag *>; // path and tag

    bool hasRoom(const PxCheckTag *tag, const QString &path) const;
    void append(const PxCheckTag *tag, const PxPlace &place, const QString &message,
                const QString &now, const QString &hint);
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
    QHash<QString, QString> m_notChecked;
    bool m_isPedantic = false;
    bool m_isPartial = false;
};
