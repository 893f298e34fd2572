#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxKnownNames.h"

#include <geometry/PxPageContext.h>

#include <QMap>

/** Checks a file of user defaults: whether the library finds it, and the entries in it. */
class PxUserDefaultsCheck
{
public:
    /**
     * The names in all product files, as they are spelt there, each with the pages of the product
     * and their sides; and the ids of all themes. None if they are not known. Both must outlive the
     * check.
     */
    PxUserDefaultsCheck(const QMap<QString, QVector<PxPageContext>> &products,
                        PxKnownNames &themeIds, const PxReporter &report)
        : m_products(products)
        , m_themeIds(themeIds)
        , m_report(report)
    {}

    void run();

private:
    /** Of the product that the file is for, as far as its name says. */
    QString productName() const;
    void checkName() const;
    bool checkStart() const;

    const QMap<QString, QVector<PxPageContext>> &m_products;
    PxKnownNames &m_themeIds;
    const PxReporter m_report;
};
