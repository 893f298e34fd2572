#pragma once

#include "values/PxPageType.h"

#include <QList>
#include <QString>

/** The pages of a product, or the kinds of page for which something is made, in order. */
class PXPRODUCTPROPERTIES_EXPORT PxPageTypeList : public QList<PxPageType>
{
public:
    PxPageTypeList() = default;
    PxPageTypeList(const QList<PxPageType> &pageTypes);
    PxPageTypeList(const QList<PxPageTypeEnum> &pageTypes);
    /**
     * One entry per part of a comma-separated list; a part that is not a keyword gives an invalid
     * one.
     */
    explicit PxPageTypeList(const QString &keywords);
    PxPageTypeList(const PxPageTypeList &other);
    PxPageTypeList &operator=(const PxPageTypeList &other);
    virtual ~PxPageTypeList();

    void appendEnum(const QList<PxPageTypeEnum> &pageTypes);
};
