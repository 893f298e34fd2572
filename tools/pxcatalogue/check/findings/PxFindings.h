#pragma once

#include "check/findings/PxAllowances.h"
#include "check/findings/PxCheckTags.h"

#include <QMap>
#include <QSet>
#include <QVector>

/** What the user wants to see. */
struct PxFindingSettings
{
    QMap<PxTag, PxSeverity> severities; ///< instead of those in the rows of the tags
    QVector<PxTag> only;                ///< reports only these; all if there are none
    QVector<PxTag> skipped;             ///< reports none of these
    bool isPedantic = false;            ///< reports matters of style, too
};

/** Collects findings and filters out those that the user does not want to see. */
class PxFindings
{
public:
    explicit PxFindings(const PxFindingSettings &settings = {}) : m_settings(settings) {}

    /**
     * Silences a tag in a part of a file for all findings that are added later. `comment` is the
     * place of the comment that asks for it. An allowance that silences nothing becomes a finding
     * if `isChecked`, which means that all checks run on the file.
     */
    void allow(const QString &tag, const PxPlace &comment, const PxPlace &part, bool isChecked);
    /** Whether only some files of the catalogue are checked. */
    void setPartial(bool isPartial) { m_isPartial = isPartial; }
    /** The tag cannot be checked. `lack` says what is missing, such as "without themes". */
    void setNotChecked(PxTag tag, const QString &lack) { m_notChecked[tag] = lack; }

    /** The findings to report, sorted by path, line, column and tag. */
    QVector<PxFinding> sorted() const;
    /** The tags whose findings, if there are any, are reported. */
    QSet<QString> tagsChecked() const;
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
    /** How bad the worst findings at a spot are; -1 if there are none. */
    struct Worst
    {
        Spot spot;
        int name = -1;        ///< of those that only say that something is not read
        int consequence = -1; ///< of all others
    };
    /** The findings of one tag in one file. */
    struct OfTag
    {
        PxSeverity severity = PxSeverity::Error;
        QVector<PxFinding> listed;
        QVector<Spot> rest; ///< those that are only counted
    };
    using OfFile = QMap<PxTag, OfTag>;

    /** Null if an allowance silences the finding, or if it is only counted. */
    PxFinding *add(PxTag tag, const PxPlace &place);
    bool hasRoom(PxTag tag, const QString &path) const;
    PxFinding *append(PxTag tag, const PxPlace &place);
    bool isWanted(PxTag tag) const;
    bool isSeen(PxTag tag, PxSeverity severity) const;
    /** What the check for the tag lacks; empty if the tag is checked. */
    QString lack(PxTag tag) const;
    void addUnused(const PxAllowances::Allowance &allowance);
    int nearestLine(PxTag tag, const PxPlace &comment) const;
    void removeUnwanted(OfFile *file) const;
    static void removeCauses(OfFile *file);
    static QVector<Worst> worstOf(const OfFile &file);
    static PxFinding summary(const QString &path, PxTag tag, const OfTag &findings);

    PxFindingSettings m_settings;
    QMap<QString, OfFile> m_files; // by path
    PxAllowances m_allowances;
    QMap<PxTag, QString> m_notChecked;
    bool m_isPartial = false;
};
