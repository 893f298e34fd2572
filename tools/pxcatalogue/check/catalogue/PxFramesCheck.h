#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedFile.h"

/** Checks the frame models of frames.xml. */
class PxFramesCheck
{
public:
    /** The file has been read. It must outlive the check. */
    PxFramesCheck(const PxReporter &report) : m_report(report) {}

    void run();

private:
    const PxReporter m_report;
};
