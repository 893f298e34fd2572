#pragma once

#include "commands/PxCommand.h"

#include <PxProductType.h>

#include <optional>

class PxProductTypeConfigRegistry;

/** The product and the theme that a command line names. */
struct PxNamedProduct
{
    enum class Among {
        All,
        Current, ///< without products of earlier catalogues
    };

    /** The current or the legacy one, which has the product. */
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    QString themeId = {}; ///< empty for none
    /** Set if there is no such product or theme. */
    std::optional<PxProblem> no = std::nullopt;

    /** Finds both. With a theme, the product must be a current one. */
    static PxNamedProduct of(const PxCommandLine &line, Among among = Among::All);
    /**
     * The product with this name, in any case, or with this code. Otherwise the only one that is
     * called so in the shop, or whose shop name has this part: among the current products, and only
     * if none of them fits, among the earlier ones. Says on stderr which one it is, unless it was
     * named by its name.
     */
    static PxNamedProduct find(const QString &name, Among among);

    /** The argument of a command about one product. */
    static PxCommandUsage::Arguments argument(Among among = Among::All);
    /** The id in --theme, in lower case like all ids; empty if no theme is given. */
    static QString themeIdOf(const PxCommandLine &line);
    /** Returns a problem if no theme has this id; an empty id is not a problem. */
    static std::optional<PxProblem> problemOfTheme(const QString &id);
};
