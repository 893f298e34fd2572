#pragma once

#include "origins/PxOrigin.h"

#include <QJsonObject>
#include <QMap>

class PxReport;
struct PxOriginFiles;
struct PxShownProduct;

/** The origins of all values that "show" prints of a product. */
class PxOrigins
{
public:
    /** Reads the files that it needs, with the places of what is in them. */
    explicit PxOrigins(const PxShownProduct &shown);
    /** With files that are already read. */
    PxOrigins(const PxShownProduct &shown, const PxOriginFiles &files);
    /** With the report about the product, too. */
    PxOrigins(const PxShownProduct &shown, const PxOriginFiles &files, const PxReport &report);

    /** Of the value at a JSON pointer: its own or that of the nearest object or array around it. */
    PxOrigin at(const QString &pointer) const;
    /** All of them by JSON pointer. */
    QJsonObject json() const;

private:
    QMap<QString, PxOrigin> m_origins;
};
