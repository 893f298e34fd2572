#include "shell/PxCompletion.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommand.h"
#include "commands/PxCommandLine.h"
#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace {

using Form = PxOption::Form;

struct Candidate
{
    QString text;
    QString description = {};
};

using Candidates = QVector<Candidate>;

/** What the words before the one that is being typed say about it. */
struct Place
{
    QString commandName; ///< empty if the command is still missing
    const PxCommand *command = nullptr;
    int arguments = 0;              ///< how many the command has already
    std::optional<PxOption> option; ///< whose value is being typed
    QStringList words;              ///< without the option
};

/** Without a command, those of any command are meant: options may precede it. */
QVector<PxOption> optionsOf(const PxCommand *command)
{
    if (command)
        return command->usage().allOptions();
    QVector<PxOption> options = PxOption::ofEveryCommand();
    for (const PxCommand *any : PxCommand::all())
        options += any->usage().options;
    return options;
}

std::optional<PxOption> optionWithValue(const QString &name, const PxCommand *command)
{
    for (const PxOption &option : optionsOf(command)) {
        if (!option.value.isEmpty() && name == "--" + option.name)
            return option;
    }
    return std::nullopt;
}

Place placeAfter(const QStringList &words)
{
    Place place;
    for (const QString &word : words) {
        if (place.option)
            place.option.reset();
        else if (word.startsWith('-'))
            place.option = optionWithValue(word, place.command);
        else if (place.commandName.isEmpty()) {
            place.commandName = word;
            place.command = PxCommand::find(word);
        } else
            ++place.arguments;
    }
    place.words = words.mid(0, words.size() - (place.option ? 1 : 0));
    return place;
}

/** The shells hand over what was typed, and would have replaced this themselves. */
QString withoutTilde(const QString &word)
{
    return word.startsWith("~/") ? QDir::homePath() + word.mid(1) : word;
}

/** Reads the catalogue that the words name; false if there is none. */
bool readCatalogue(const Place &place)
{
    if (!place.command)
        return false;
    QStringList words{QCoreApplication::applicationName()};
    for (const QString &word : place.words)
        words.append(withoutTilde(word));
    if (PxCatalogueDirectories::apply(PxCommandLine(words)))
        return false;
    PxProductPropertiesInitializer::setupModule();
    return true;
}

Candidates products(const PxProductTypeConfigRegistry *registry)
{
    Candidates products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry))
        products.append({type.productName(), type.shortProductName()});
    return products;
}

Candidates currentProducts()
{
    return products(PxProductTypeConfigRegistry::instance());
}

Candidates themes()
{
    Candidates themes;
    for (const PxTheme &theme : PxThemeFactory::instance()->themeList())
        themes.append({theme.id(), theme.description()});
    return themes;
}

/** The keywords, behind those that stand in the list already. */
Candidates keywords(const PxOption &option, const QString &typed)
{
    QString before;
    if (option.form != Form::OneKeyword)
        before = typed.left(typed.lastIndexOf(',') + 1);
    if (option.form == Form::SignedKeywords && typed.mid(before.size()).startsWith('-'))
        before += '-';
    Candidates candidates;
    for (const QString &keyword : option.keywords)
        candidates.append({before + keyword});
    return candidates;
}

/** The values of an option, or the arguments of a command. */
Candidates values(const PxOption &option, const Place &place, const QString &typed)
{
    switch (option.form) {
    case Form::Product:
        return readCatalogue(place)
                   ? currentProducts() + products(PxProductTypeConfigRegistry::legacyInstance())
                   : Candidates();
    case Form::CurrentProduct:
        return readCatalogue(place) ? currentProducts() : Candidates();
    case Form::Theme:
        return readCatalogue(place) ? themes() : Candidates();
    case Form::File:
        return {{":files"}};
    case Form::Directory:
    case Form::Directories:
        return {{":directories"}};
    default:
        return keywords(option, typed);
    }
}

/** The first sentence. */
QString summaryOf(const QString &description)
{
    const QString sentence = description.section('\n', 0, 0).section(". ", 0, 0);
    return sentence.endsWith('.') ? sentence.chopped(1) : sentence;
}

Candidates options(const Place &place)
{
    Candidates candidates;
    const auto known =
        place.command ? place.command->usage().allOptions() : PxOption::ofEveryCommand();
    for (const PxOption &option : known)
        candidates.append({"--" + option.name, summaryOf(option.description)});
    return candidates;
}

Candidates commands()
{
    Candidates candidates;
    for (const PxCommand *command : PxCommand::all())
        candidates.append({command->usage().name, summaryOf(command->usage().description)});
    return candidates;
}

/** What may stand where no option and no value of one is being typed. */
Candidates arguments(const Place &place, const QString &typed)
{
    if (place.commandName.isEmpty())
        return commands() + Candidates{{"help", "Explain the commands, or the options of one"}};
    if (place.commandName == "help")
        return place.arguments == 0 ? commands() : Candidates();
    if (!place.command)
        return {};
    const PxCommandUsage::Arguments taken = place.command->usage().arguments;
    if (place.arguments >= taken.most)
        return options(place);
    PxOption argument;
    argument.form = taken.form;
    return values(argument, place, typed);
}

Candidates candidatesFor(const Place &place, const QString &typed)
{
    if (place.option)
        return values(*place.option, place, typed);
    if (!typed.startsWith('-'))
        return arguments(place, typed);
    const int end = typed.indexOf('=');
    const auto option = optionWithValue(typed.left(end), place.command);
    if (end < 0 || !option)
        return options(place);
    Candidates candidates = values(*option, place, typed.mid(end + 1));
    for (Candidate &candidate : candidates) {
        if (!candidate.text.startsWith(':'))
            candidate.text.prepend(typed.left(end + 1));
    }
    return candidates;
}

} // namespace

PxOutputText PxCompletion::of(const QStringList &words)
{
    const QString typed = words.value(words.size() - 1);
    PxOutputText text;
    for (const Candidate &candidate :
         candidatesFor(placeAfter(words.mid(0, words.size() - 1)), typed)) {
        const bool isInstruction = candidate.text.startsWith(':');
        if (!isInstruction && !candidate.text.startsWith(typed, Qt::CaseInsensitive))
            continue;
        if (candidate.description.isEmpty())
            text.addLine(candidate.text);
        else
            text.addTabSeparated({candidate.text, candidate.description});
    }
    return text;
}
