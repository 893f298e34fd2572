#pragma once

#include "origins/PxOriginFile.h"
#include "origins/PxOrigins.h"
#include "report/PxShownProduct.h"

/** A product to ask about, with a page count, and the places in its files. */
class PxWhyProduct
{
public:
    /** With as many pages as it is sold with if `pageCount` is 0. */
    PxWhyProduct(const PxProductTypeConfigRegistry *registry, const PxProductType &type,
                 const QString &themeId = {}, int pageCount = 0);

    const PxShownProduct &shown() const { return m_shown; }
    PxProductType type() const { return m_shown.type; }
    QString name() const { return m_shown.type.productName(); }
    const PxProductTypeDescription &description() const { return *m_shown.product; }
    /** Whether it is in the current catalogue, and not only in an earlier one. */
    bool isCurrent() const;
    /** Whether a file describes it, which may be that of an earlier catalogue. */
    bool isDescribed() const;

    const PxOriginFiles &files() const { return m_files; }
    const PxOriginFile &file() const { return m_files.product; }
    const PxOriginFile &userDefaults() const { return m_files.userDefaults; }
    const PxOriginFile &theme() const { return m_files.theme; }
    /** Of a value that "show" prints, named by its JSON pointer. */
    PxOrigin origin(const QString &pointer) const { return m_origins.at(pointer); }

private:
    PxShownProduct m_shown;
    PxOriginFiles m_files;
    PxOrigins m_origins;
};
