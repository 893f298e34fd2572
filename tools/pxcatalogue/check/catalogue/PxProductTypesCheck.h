#pragma once

#include "check/source/PxCheckedFile.h"

#include <PxProductType.h>

#include <QMap>

/** Checks the rows of producttypes.xml. */
class PxProductTypesCheck
{
public:
    /** The file has been read. It must outlive the check. */
    explicit PxProductTypesCheck(const PxCheckedFile &file) : m_file(file) {}

    void run(PxFindings *findings);
    /** Where the name of each product type stands that the library takes from the file. */
    QMap<PxProductType, PxPlace> places() const { return m_places; }

private:
    void checkRow(const PxSourceElement &row, PxFindings *findings);
    void checkMisspelt(const PxSourceElement &root, PxFindings *findings) const;
    void drop(const PxSourceElement &row, const char *attribute, const QString &message,
              PxFindings *findings, const QString &hint = QString()) const;
    void dropClass(const PxSourceElement &row, PxFindings *findings) const;
    void checkStyle(const PxSourceElement &row, const QString &name, PxFindings *findings) const;

    const PxCheckedFile &m_file;
    QMap<int, const PxSourceElement *> m_rowOfCode; // of the rows that the library takes
    QMap<QString, const PxSourceElement *> m_rowOfName;
    QMap<PxProductType, PxPlace> m_places;
};
