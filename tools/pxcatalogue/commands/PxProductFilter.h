#pragma once

#include "commands/PxOption.h"

#include <PxProductTypeList.h>

class PxCommandLine;
class PxProductTypeConfigRegistry;

/** Which products a command line asks for. */
class PxProductFilter
{
public:
    static QVector<PxOption> options();
    /** The options that are given, as the user wrote them; empty if none is. */
    static QString given(const PxCommandLine &line);
    /** Those of the products of the registry that all the options let through. */
    static PxProductTypeList filtered(const PxProductTypeConfigRegistry *registry,
                                      const PxCommandLine &line);
};
