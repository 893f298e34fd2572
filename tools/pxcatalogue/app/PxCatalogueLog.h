#pragma once

/** Keeps the library's log apart from the output: each message is a line of its own on stderr. */
class PxCatalogueLog
{
public:
    enum class Shown {
        Nothing,
        /** Also the debug message that explains a warning: why a file could not be read. */
        Warnings,
        Everything,
    };

    static void install(Shown shown);
};
