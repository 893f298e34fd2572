#pragma once

#include "origins/PxOrigin.h"
#include "report/PxReportValue.h"

#include <QJsonValue>
#include <QString>
#include <QVector>

/** A value that a rule compares, and how it is written as text. */
struct PxWhyValue
{
    QJsonValue json = {};
    PxReportFormat format = PxReportFormat::Plain;
};

/** One of the tests that the library makes before it answers. */
struct PxWhyRule
{
    QString tag;
    bool holds;
    PxWhyValue asked;            ///< what the value must be or must fit
    PxWhyValue given;            ///< null if there is no such value
    QVector<PxOrigin> origins;   ///< first of what is asked, then of what is given
    QVector<PxOrigin> lost = {}; ///< entries of files that were not chosen; `rule` says why
};

/** A question about a product. */
struct PxWhyQuestion
{
    QString text;
    bool answer;              ///< that of the library
    QVector<PxWhyRule> rules; ///< in the order in which the library asks them
};
