#pragma once

/** A part of a text, from one index to the one behind it. */
struct PxSourceRange
{
    int begin = 0;
    int end = 0;
};
