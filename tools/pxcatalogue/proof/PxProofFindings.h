#pragma once

#include "check/findings/PxFinding.h"

#include <QHash>
#include <QString>
#include <QVector>

class PxCheckedFile;
class PxHtml;

/** Findings of the check as HTML, each with the line of the file. */
class PxProofFindings
{
public:
    /**
     * `fileNames` are those to show, by path. The file is that of all the findings, if it is read
     * already, else null.
     */
    static void addTo(PxHtml *html, const QVector<PxFinding> &findings,
                      const QHash<QString, QString> &fileNames,
                      const PxCheckedFile *file = nullptr);
};
