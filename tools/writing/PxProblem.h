#pragma once

#include <QString>

/** Why something cannot be done, in one line for the user. */
struct PxProblem
{
    QString text;
};
