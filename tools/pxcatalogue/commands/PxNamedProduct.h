#pragma once

#include "commands/PxCommand.h"

#include <PxProductType.h>

#include <optional>

class PxProductTypeConfigRegistry;

/** The product and the theme that a command line names. */
struct PxNamedProduct
{
    /** The current or the legacy one, which has the product. */
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    QString themeId; ///< empty for none
    /** Set if there is no such product or theme. */
    std::optional<PxProblem> no = std::nullopt;

    /** Finds the product among the current ones, without a theme among the legacy ones, too. */
    static PxNamedProduct of(const PxCommandLine &line);

    /** The argument of a command about one product. */
    static PxCommandUsage::Arguments argument();
    /** The id in --theme, in lower case like all ids; empty if no theme is given. */
    static QString themeIdOf(const PxCommandLine &line);
    static PxProblem unknownProduct(const QString &name);
    /** Returns a problem if no theme has this id; an empty id is not a problem. */
    static std::optional<PxProblem> problemOfTheme(const QString &id);
};
