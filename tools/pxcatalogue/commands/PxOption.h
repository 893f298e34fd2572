#pragma once

#include "writing/PxProblem.h"

#include <QStringList>
#include <QVector>

#include <optional>

/** An option of the command line. */
struct PxOption
{
    QString name;
    QString value; ///< the name of its value in --help; empty for an option without a value
    QString description;
    int least = 0; ///< bounds if the value is a number; then `most` is not 0
    int most = 0;
    QStringList keywords = {}; ///< allowed in a list with commas; empty if any text is

    /** What is wrong with a value of the option. */
    std::optional<PxProblem> problemOf(const QString &text) const;

    // Options of several commands, and those of every command.
    static PxOption theme();
    static PxOption json();
    static QVector<PxOption> ofEveryCommand();
};
