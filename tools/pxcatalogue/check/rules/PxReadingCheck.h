#pragma once

#include "check/findings/PxReporter.h"

/** Reports why the library cannot read a file, in better words than a parser has. */
class PxReadingCheck
{
public:
    explicit PxReadingCheck(const PxReporter &report) : m_report(report) {}

    void run();

private:
    void checkLetters();
    void checkMarkup();

    const PxReporter m_report;
};
