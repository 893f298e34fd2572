#pragma once

#include "writing/PxProblem.h"

#include <QStringList>
#include <QVector>

#include <optional>

/** An option of the command line. */
struct PxOption
{
    QString name;
    QString value; ///< what --help calls its value; empty for an option without one
    QString description;
    int least = 0; ///< the bounds of a number; only if `most` is not 0
    int most = 0;
    QStringList keywords = {}; ///< of a list with commas; none if it takes other texts

    /** What is wrong with a value of the option. */
    std::optional<PxProblem> problemOf(const QString &text) const;

    // Those that several commands take, and those that every command takes.
    static PxOption theme();
    static PxOption json();
    static QVector<PxOption> ofEveryCommand();
};
