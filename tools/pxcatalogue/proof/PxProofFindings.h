#pragma once

#include "check/findings/PxFinding.h"

#include <QVector>

class PxHtml;

/** Findings of the check as HTML, each with the line of the file. */
class PxProofFindings
{
public:
    static void addTo(PxHtml *html, const QVector<PxFinding> &findings);
};
