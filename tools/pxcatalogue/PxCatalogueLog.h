#pragma once

/** Keeps the library's log apart from the output: each message is a line of its own on stderr. */
class PxCatalogueLog
{
public:
    enum class Shown {
        Nothing,
        /** Also one debug message: why a product file could not be read, which authors must know.
         */
        Warnings,
        Everything,
    };

    static void install(Shown shown);
};
