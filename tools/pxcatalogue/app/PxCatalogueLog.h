#pragma once

/** Prints the log of the library to stderr, one line for each message. */
class PxCatalogueLog
{
public:
    enum class Shown {
        Nothing,
        /** Includes the debug message after a warning that says why a file could not be read. */
        Warnings,
        Everything,
    };

    static void install(Shown shown);
};
