#pragma once

#include "check/source/PxCheckedFile.h"

#include <QSet>

/** Checks whether the library finds a file of user defaults, and the entries in it. */
class PxUserDefaultsCheck
{
public:
    /** The names in all product files, as they are spelt there; none when they are not known. */
    PxUserDefaultsCheck(const PxCheckedFile &file, const QSet<QString> &productNames)
        : m_file(file)
        , m_productNames(productNames)
    {}

    void checkName(PxFindings *findings) const;
    /** False when the library finds no entry because of what stands above the first element. */
    bool checkStart(PxFindings *findings) const;

private:
    const PxCheckedFile &m_file;
    const QSet<QString> &m_productNames;
};
