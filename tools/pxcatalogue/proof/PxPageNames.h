#pragma once

#include <QHash>
#include <QString>

/** The names of the pages in the folder: plain, unique whatever the case, and always the same. */
class PxPageNames
{
public:
    enum class Kind { Product, LegacyProduct, Theme };

    /**
     * Without ending, such as "product-book-a4-portrait". Only lower case letters, digits and
     * hyphens; a name that is more than that also gets a digest, so that no two share a page.
     */
    static QString of(Kind kind, const QString &name);
};
