#include "commands/PxOption.h"

#include "check/words/PxSpelling.h"

#include <QRegularExpression>

namespace {

bool isNumber(const QString &text, const PxOption &option)
{
    static const QRegularExpression ourTenths("^[0-9]+(\\.[0-9])?$");
    bool isNumber = false;
    const double number =
        option.form == PxOption::Form::Tenths ? text.toDouble(&isNumber) : text.toInt(&isNumber);
    if (option.form == PxOption::Form::Tenths)
        isNumber = ourTenths.match(text).hasMatch();
    return isNumber && number >= option.least && number <= option.most;
}

/** What stands before a keyword. */
QString prefixOf(const QString &word, const PxOption &option)
{
    return option.form == PxOption::Form::SignedKeywords && word.startsWith('-') ? "-" : "";
}

/** The word as the list of the option spells it; empty if it is no keyword. */
QString keywordOf(const QString &word, const PxOption &option)
{
    const QString prefix = prefixOf(word, option);
    for (const QString &keyword : option.keywords) {
        if (word.compare(prefix + keyword, Qt::CaseInsensitive) == 0)
            return prefix + keyword;
    }
    return QString();
}

QStringList wordsOf(const QString &text, const PxOption &option)
{
    QStringList words =
        option.form == PxOption::Form::OneKeyword ? QStringList(text) : text.split(',');
    for (QString &word : words)
        word = word.trimmed();
    return words;
}

} // namespace

QStringList PxOption::names() const
{
    return name == "help" ? QStringList{"h", name} : QStringList(name);
}

std::optional<PxProblem> PxOption::problemOf(const QString &text) const
{
    if (most > 0 && !isNumber(text, *this))
        return PxProblem{QString("--%1 needs a number from %2 to %3%4, not \"%5\"")
                             .arg(name, QString::number(least), QString::number(most),
                                  form == Form::Tenths ? " with at most one decimal" : "", text)};
    const bool isOpen = keywords.isEmpty() || form == Form::OpenKeywords;
    const QStringList words = isOpen ? QStringList() : wordsOf(text, *this);
    for (const QString &word : words) {
        if (!keywordOf(word, *this).isEmpty())
            continue;
        const QString near = PxSpelling::didYouMean(
            PxSpelling::nearestThree(word.mid(prefixOf(word, *this).size()), keywords));
        return PxProblem{
            QString("--%1 does not know \"%2\": %3")
                .arg(name, word, near.isEmpty() ? "use " + keywords.join(", ") : near)};
    }
    return std::nullopt;
}

QStringList PxOption::keywordsIn(const QString &text) const
{
    QStringList found;
    const QStringList words = text.isEmpty() ? QStringList() : wordsOf(text, *this);
    for (const QString &word : words)
        found.append(keywordOf(word, *this));
    return found;
}

// clang-format off
PxOption PxOption::theme()
{
    return {"theme", "ID", "Show the product in this theme, or only the products that it allows. Default: no theme, with the default templates of the theme normal.", 0, 0, {}, Form::Theme};
}

PxOption PxOption::json()
{
    return {"json", "", "JSON, with all lengths in tenths of a millimetre, instead of text."};
}

QVector<PxOption> PxOption::ofCatalogue()
{
    return {
        {"resources", "DIR[:DIR]", "The resource directories of a catalogue, whose themes and defaults are used, too. Default: PX_RESOURCE_DIRS, else the catalogue installed with the library.", 0, 0, {}, Form::Directories},
        {"products", "DIR", "The directory of the product files. Default: products in the resource directories.", 0, 0, {}, Form::Directory},
        {"legacy", "DIR", "The directory of the legacy product files. Default: products/legacy in the resource directories.", 0, 0, {}, Form::Directory},
        {"user-defaults", "DIR", "The directory of the user's default templates. Default: defaults in the catalogue that the command line names, else PX_USER_DEFAULTS_DIR, else defaults in the data directory of the user.", 0, 0, {}, Form::Directory},
        {"themes", "DIR", "The directory of the theme files. Default: themes in the catalogue that the command line names, else PX_THEMES_DIR, else themes in the resource directories.", 0, 0, {}, Form::Directory},
    };
}

QVector<PxOption> PxOption::ofEveryCommand()
{
    return ofCatalogue() + QVector<PxOption>{
        {"lang", "LANGUAGE", "The language of display names: en or de. Default: that of the locale, else German.", 0, 0, {"en", "de"}, Form::OneKeyword},
        {"verbose", "", "Print the debug messages of the library, too. The reason why a product or theme file could not be read is printed anyway, except by check and proof, which print no messages of the library without this."},
        {"help", "", "Explain the commands, or the options of one."},
        {"version", "", "The version of the program."},
    };
}
// clang-format on
