#pragma once

#include "check/findings/PxFinding.h"

#include <QHash>
#include <QString>
#include <QVector>

class PxHtml;

/** Findings of the check as HTML, each with the line of the file. */
class PxProofFindings
{
public:
    /** `fileNames` are those to show, by path. */
    static void addTo(PxHtml *html, const QVector<PxFinding> &findings,
                      const QHash<QString, QString> &fileNames);
};
