#pragma once

#include "check/source/PxCheckedFile.h"

/** Checks the frame models of frames.xml. */
class PxFramesCheck
{
public:
    /** The file has been read. It must outlive the check. */
    explicit PxFramesCheck(const PxCheckedFile &file) : m_file(file) {}

    void run(PxFindings *findings) const;

private:
    const PxCheckedFile &m_file;
};
