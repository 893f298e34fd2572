#pragma once

#include "values/PxPageType.h"

#include <QList>
#include <QString>

/** The pages of a product, or the kinds of page for which something is made, in order. */
class PXPRODUCTPROPERTIES_EXPORT PxPageTypeList : public QList<PxPageType>
{
public:
    PxPageTypeList() = default;
    /** The same entries. */
    PxPageTypeList(const QList<PxPageType> &pageTypes);
    /** One entry per value. */
    PxPageTypeList(const QList<PxPageTypeEnum> &pageTypes);
    /**
     * One entry per part of a comma-separated list; a part that is not a keyword gives an invalid
     * one.
     */
    explicit PxPageTypeList(const QString &keywords);
    PxPageTypeList(const PxPageTypeList &other);
    PxPageTypeList &operator=(const PxPageTypeList &other);
    virtual ~PxPageTypeList();

    /** Appends one entry per value. */
    void appendEnum(const QList<PxPageTypeEnum> &pageTypes);
};
