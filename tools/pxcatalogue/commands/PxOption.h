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
    int least = 0;             ///< smallest number allowed
    int most = 0;              ///< largest number allowed; 0 if the value is not a number
    QStringList keywords = {}; ///< those of a comma-separated list; empty if any text is allowed

    /** What else a value may be, or must not. */
    enum class Form {
        Usual,
        Tenths,         ///< the number may have one decimal
        OneKeyword,     ///< no list
        SignedKeywords, ///< "-" may stand before a keyword
        OpenKeywords,   ///< the command allows other words, too, and checks them
        Product,        ///< the name of a product
        CurrentProduct, ///< the same, but not of an earlier catalogue
        Theme,          ///< the id of a theme
        File,           ///< the path of a file, or of whatever the command takes
        Directory,      ///< the path of a directory
        Directories,    ///< several, with colons between them
    };
    Form form = Form::Usual;

    /** All its names, the short one first. */
    QStringList names() const;
    /** What is wrong with a value of the option. */
    std::optional<PxProblem> problemOf(const QString &text) const;
    /** The keywords in a value of the option, spelt as in `keywords`. */
    QStringList keywordsIn(const QString &text) const;

    // Options that several commands have, and those that every command has.
    static PxOption theme();
    static PxOption json();
    /** Those that name a catalogue, or a part of one; the first of ofEveryCommand(). */
    static QVector<PxOption> ofCatalogue();
    static QVector<PxOption> ofEveryCommand();
};
