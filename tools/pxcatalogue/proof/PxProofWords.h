#pragma once

#include <QCoreApplication>
#include <QString>

/** The words of the proof, in the language of the display names. */
class PxProofWords
{
    Q_DECLARE_TR_FUNCTIONS(PxProof)

public:
    /** "de" or "en". */
    static QString language();
    /** A heading or a label of a report, which are English, in the language. */
    static QString of(const QString &label);
    static QString yesOrNo(bool is);
};
