#pragma once

#include "report/PxReportValue.h"

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
    /** The meaning of a keyword; itself, if it is no keyword or has no word. */
    static QString keyword(const QString &keyword);
    /** A value as text, without unit; empty for null, an empty text or an empty list. */
    static QString value(const QJsonValue &value, PxReportFormat format);
};
