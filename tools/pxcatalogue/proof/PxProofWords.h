#pragma once

#include <QCoreApplication>
#include <QString>

/** The words of the proof, in the language of the display names: German or English. */
class PxProofWords
{
    Q_DECLARE_TR_FUNCTIONS(PxProof)

public:
    /** "de" or "en". */
    static QString language();
    /** A label of a report, which is English. */
    static QString label(const char *english);
    /** The heading of the section of a report with this key, which is `english`. */
    static QString heading(const char *key, const QString &english);
    /** A class, an orientation, or a keyword of the option --criterion. */
    static QString keyword(const QString &keyword);
    static QString yesOrNo(bool is);
};
