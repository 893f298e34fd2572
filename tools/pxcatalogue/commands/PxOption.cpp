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
    return {"theme", "ID", "As designed in this theme. Default: default templates of the theme normal, products whatever their themes."};
}

PxOption PxOption::json()
{
    return {"json", "", "JSON, with all lengths in tenths of a millimetre, instead of text."};
}

QVector<PxOption> PxOption::ofEveryCommand()
{
    return {
        {"resources", "DIR[:DIR]", "The resource directories of a catalogue, with the themes and the defaults in them. Default: PX_RESOURCE_DIRS, else the catalogue installed with the library."},
        {"products", "DIR", "The directory of the product files. Default: products in the resource directories."},
        {"legacy", "DIR", "The directory of the legacy product files. Default: products/legacy in the same."},
        {"user-defaults", "DIR", "The user's default templates. Default: defaults in a catalogue that is named, else PX_USER_DEFAULTS_DIR, else defaults in the data directory of the user."},
        {"themes", "DIR", "The directory of the theme files. Default: themes in a catalogue that is named, else PX_THEMES_DIR, else themes in the resource directories."},
        {"lang", "LANGUAGE", "The language of display names: en or de. Default: that of the locale, else German."},
        {"verbose", "", "Also the debug messages of the library. Why a product or theme file could not be read is always told; check tells no messages without this."},
        {"help", "", "This text."},
        {"version", "", "The version of the program."},
    };
}
// clang-format on
