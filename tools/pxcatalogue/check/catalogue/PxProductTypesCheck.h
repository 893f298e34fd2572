#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedFile.h"

#include <PxProductType.h>

#include <QMap>

/** Checks the rows of producttypes.xml. */
class PxProductTypesCheck
{
public:
    /** The file has been read. */
    PxProductTypesCheck(const PxReporter &report) : m_report(report) {}

    void run();
    /** Where the name of each product type stands that the library takes from the file. */
    QMap<PxProductType, PxPlace> places() const { return m_places; }

private:
    void checkRow(const PxSourceElement &row);
    bool checkMisplaced(const PxSourceElement &root) const;
    template <typename... Arguments>
    PxAddedFinding drop(const PxSourceElement &row, const char *attribute, const QString &message,
                        const Arguments &...arguments) const;
    void dropClass(const PxSourceElement &row) const;
    void checkStyle(const PxSourceElement &row, const QString &name) const;

    const PxReporter m_report;
    QMap<int, const PxSourceElement *> m_rowOfCode; // of the rows that the library takes
    QMap<QString, const PxSourceElement *> m_rowOfName;
    QMap<PxProductType, PxPlace> m_places;
};
