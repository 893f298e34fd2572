#pragma once

#include "drawing/PxDrawnProduct.h"

class PxProductTypeConfigRegistry;

/** Asks the library everything that a drawing of a product shows. */
class PxDrawnProductReader
{
public:
    /**
     * A product with more sheets that differ is not drawn: nobody could look at them, and a short
     * file may ask for a hundred thousand.
     */
    static constexpr int maximumSheets = 1000;
    /** The longest name that is drawn; no file system has longer paths. */
    static constexpr int maximumNameLength = 4096;
    /** The greatest length of a page, of bleed and of text on a spine: 100 m. */
    static constexpr int maximumLength = 1000000;

    /** The products of this registry, the current or the legacy one, which must outlive it. */
    explicit PxDrawnProductReader(const PxProductTypeConfigRegistry *registry)
        : m_registry(registry)
    {}

    /**
     * The product with this page count, 0 for that with which it is sold, and this theme, empty for
     * none. If `problem` is set, there are no sheets.
     */
    PxDrawnProduct read(const PxProductType &type, int pageCount, const QString &themeId) const;

private:
    const PxProductTypeConfigRegistry *m_registry;
};
