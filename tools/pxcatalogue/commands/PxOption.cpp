#include "commands/PxOption.h"

std::optional<PxProblem> PxOption::problemOf(const QString &text) const
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (most > 0 && (!isNumber || number < least || number > most))
        return PxProblem{QString("--%1 needs a number from %2 to %3, not \"%4\"")
                             .arg(name, QString::number(least), QString::number(most), text)};
    const QStringList parts = keywords.isEmpty() ? QStringList() : text.split(',');
    for (const QString &part : parts) {
        if (!keywords.contains(part.trimmed(), Qt::CaseInsensitive))
            return PxProblem{
                QString("--%1 does not know \"%2\": use %3").arg(name, part, keywords.join(", "))};
    }
    return std::nullopt;
}

// clang-format off
PxOption PxOption::theme()
{
    return {"theme", "ID", "Show the product in this theme, or only the products that it allows. Default: no theme, with the default templates of the theme normal."};
}

PxOption PxOption::json()
{
    return {"json", "", "JSON, with all lengths in tenths of a millimetre, instead of text."};
}

QVector<PxOption> PxOption::ofEveryCommand()
{
    return {
        {"resources", "DIR[:DIR]", "The resource directories of a catalogue, whose themes and defaults are used, too. Default: PX_RESOURCE_DIRS, else the catalogue installed with the library."},
        {"products", "DIR", "The directory of the product files. Default: products in the resource directories."},
        {"legacy", "DIR", "The directory of the legacy product files. Default: products/legacy in the resource directories."},
        {"user-defaults", "DIR", "The directory of the user's default templates. Default: defaults in the catalogue that the command line names, else PX_USER_DEFAULTS_DIR, else defaults in the data directory of the user."},
        {"themes", "DIR", "The directory of the theme files. Default: themes in the catalogue that the command line names, else PX_THEMES_DIR, else themes in the resource directories."},
        {"lang", "LANGUAGE", "The language of display names: en or de. Default: that of the locale, else German."},
        {"verbose", "", "Print the debug messages of the library, too. The reason why a product or theme file could not be read is printed anyway, except by check, which prints no messages of the library without this."},
        {"help", "", "This text."},
        {"version", "", "The version of the program."},
    };
}
// clang-format on
