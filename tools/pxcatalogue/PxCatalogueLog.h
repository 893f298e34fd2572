#pragma once

/** Keeps the library's log apart from the output: each message is a line of its own on stderr. */
class PxCatalogueLog
{
public:
    /**
     * Debug messages are shown when `isVerbose`.
     *
     * One is shown always: why a product file could not be read, which its author has to know.
     */
    static void install(bool isVerbose);
};
