#include "commands/PxCommandLine.h"

#include "report/PxCatalogueKeywords.h"
#include "report/PxProductReport.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <iterator>
#include <limits>
#include <numeric>

namespace {

using Command = PxCommandLine::Command;

constexpr int themedCommands = int(Command::Show) | int(Command::Compatible);
constexpr int shownCommands =
    themedCommands | int(Command::List) | int(Command::Themes) | int(Command::Variants);
constexpr int everyCommand = shownCommands | int(Command::Check);

/** What stands behind the name of a command. */
struct Argument
{
    const char *name;
    const char *meaning;
    int least;
    int most;
};

constexpr Argument productName = {"NAME", "The name of a product, in any case.", 1, 1};
constexpr Argument filePaths = {"[PATH…]", "A resource directory, or files.", 0,
                                std::numeric_limits<int>::max()};

// clang-format off
constexpr struct CommandRow { Command command; const char *name; const Argument *argument; const char *description; } commandRows[] = {
    {Command::List, "list", nullptr, "A table of the products, by class and name.\n"
        "Pages 26-154/2 means from 26 to 154 in steps of 2; 26, 30 means these two."},
    {Command::Show, "show", &productName, "Everything that is known about one product.\n"
        "Page numbers begin at 0 and count covers and spine; 4-28/2 means every second one\n"
        "from 4 to 28. What the product does not have is left out."},
    {Command::Compatible, "compatible", &productName, "The other products that are interchangeable with this one.\n"
        "Those of its class with the same orientation and a page list of as many entries (a range of\n"
        "pages is one), both lists with a spine or both without. Page counts are not compared.\n"
        "--criterion names what must agree beside these."},
    {Command::Themes, "themes", nullptr, "A table of the design themes, by id.\n"
        "Products is the number of those that a theme allows; JSON names them."},
    {Command::Check, "check", &filePaths, "What authors should know about the files of a catalogue.\n"
        "Each place where what a file says and what the library does part ways, with the line and the\n"
        "column, what the library does now, and what was probably meant. PATH is a resource directory,\n"
        "or single files, which are checked each by itself; default: the resource directories. The\n"
        "comment <!-- check: allow TAG reason --> silences a tag for the element behind it.\n"
        "Exit status: 0 nothing found that is as bad as --fail-on says; 1 something is; 2 wrong usage,\n"
        "or what cannot be read or written; 3 a fault of the program."},
    {Command::Variants, "variants", &productName, "The variants of one product, as its colours, with their names.\n"
        "Those without a name are not on offer and left out."},
};

constexpr struct { int commands; const char *name; const char *value; const char *description; } optionRows[] = {
    {int(Command::List), "class", "KEYWORD", "Only these products: book, calendar, gift, card, deko or print; several with commas."},
    {int(Command::List), "earlier", nullptr, "The products of earlier catalogues, those of --legacy, instead of the current ones."},
    {int(Command::Show), "pages", "N", "As a product of so many pages, 1 to 9999. Default: as many as it is sold with."},
    {int(Command::Compatible), "criterion", "KEYWORDS", "What must agree, too: binding, paper, space and increment, with commas. Default: none."},
    {themedCommands, "theme", "ID", "As designed in this theme. Default: default templates of the theme normal, products whatever their themes."},
    {int(Command::Themes), "key-account", "N", "Only the themes that this key account may order today."},
    {shownCommands, "json", nullptr, "JSON, with all lengths in tenths of a millimetre, instead of text."},
    {int(Command::Check), "format", "FORMAT", "text, json or sarif (2.1.0). Default: text."},
    {int(Command::Check), "quiet", nullptr, "As text, the findings only: nothing at all when there is none."},
    {int(Command::Check), "pedantic", nullptr, "Also matters of style."},
    {int(Command::Check), "fail-on", "SEVERITY", "How bad a finding must be for exit status 1: error, warning, info or pedantic. Default: error."},
    {int(Command::Check), "override", "TAG=SEVERITY", "Another severity for this tag; several with commas."},
    {int(Command::Check), "only", "TAGS", "Only findings with these tags; several with commas."},
    {int(Command::Check), "skip", "TAGS", "No findings with these tags; several with commas."},
    {int(Command::Check), "baseline", "FILE", "No findings that are listed in this file."},
    {int(Command::Check), "write-baseline", "FILE", "List all findings in this file instead of printing them."},
    {int(Command::Check), "explain", "TAG", "What a tag means, with an example. Nothing is checked."},
    {int(Command::Check), "list-tags", nullptr, "A table of all tags. Nothing is checked. --format markdown: with their explanations."},
    {everyCommand, "resources", "DIR[:DIR]", "The resource directories of a catalogue, with the themes and the defaults in them. Default: PX_RESOURCE_DIRS, else the catalogue installed with the library."},
    {everyCommand, "products", "DIR", "The directory of the product files. Default: products in the resource directories."},
    {everyCommand, "legacy", "DIR", "The directory of the legacy product files. Default: products/legacy in the same."},
    {everyCommand, "user-defaults", "DIR", "The user's default templates. Default: defaults in a catalogue that is named, else PX_USER_DEFAULTS_DIR, else defaults in the data directory of the user."},
    {everyCommand, "themes", "DIR", "The directory of the theme files. Default: themes in a catalogue that is named, else PX_THEMES_DIR, else themes in the resource directories."},
    {everyCommand, "lang", "LANGUAGE", "The language of display names: en or de. Default: that of the locale, else German."},
    {everyCommand, "verbose", nullptr, "Also the debug messages of the library. Why a product or theme file could not be read is always told; check tells no messages without this."},
    {everyCommand, "help", nullptr, "This text."},
    {everyCommand, "version", nullptr, "The version of the program."},
};
// clang-format on

constexpr const char *introduction =
    "Shows the products of a catalogue as the product properties library understands\n"
    "their files. Tables fit the terminal (COLUMNS), texts that do not are shortened.\n"
    "\nCommands (--help after a command tells its options):\n";
constexpr const char *exitStatus =
    "\nExit status: 0 done; 1 the answer is \"no\": there is no such product or\n"
    "theme, no other product that is interchangeable, no theme to order, or no variant;\n"
    "2 wrong usage, a directory or a producttypes.xml that cannot be read, or output that\n"
    "cannot be written.\n"
    "\"check --help\" tells that of check.";

QString programDescription()
{
    QString description = QLatin1String(introduction);
    for (const auto &row : commandRows) {
        const QString usage = QLatin1String(row.name) + QLatin1Char(' ') +
                              QString::fromUtf8(row.argument ? row.argument->name : "");
        description += QLatin1String("  ") + usage.leftJustified(17) +
                       QString::fromUtf8(row.description).section(QLatin1Char('\n'), 0, 0) +
                       QLatin1Char('\n');
    }
    return description + QLatin1String(exitStatus);
}

QString version()
{
    return QCoreApplication::applicationName() + QLatin1Char(' ') +
           QCoreApplication::applicationVersion() + QLatin1Char('\n');
}

const CommandRow &rowOf(Command command)
{
    return *std::find_if(std::begin(commandRows), std::end(commandRows),
                         [command](const CommandRow &row) { return row.command == command; });
}

QString namesOf(int commands)
{
    QStringList names;
    for (const auto &row : commandRows) {
        if ((int(row.command) & commands) != 0)
            names.append(QLatin1String(row.name));
    }
    return names.join(QLatin1String(", "));
}

void addOptions(QCommandLineParser *parser, int commands)
{
    for (const auto &row : optionRows) {
        if ((row.commands & commands) == 0)
            continue;
        // Among the options of all commands it has to be told whose this one is.
        const bool isOfSome = commands == everyCommand && row.commands != everyCommand;
        const QString owner = isOfSome ? namesOf(row.commands) : QString();
        const QString description = QString::fromUtf8(row.description);
        parser->addOption(
            {QLatin1String(row.name),
             owner.isEmpty() ? description : owner + QLatin1String(": ") + description,
             QLatin1String(row.value)});
    }
}

} // namespace

PxCommandLine::PxCommandLine(const QStringList &arguments)
{
    if (readCommand(arguments))
        readOptions(arguments);
}

QJsonArray PxCommandLine::criterionKeywords() const
{
    return QJsonArray::fromStringList(keywordsOf(m_criterion, ::criterionKeywords));
}

/** Answers whether there is one; its options, which may stand before it, are read after it. */
bool PxCommandLine::readCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser, everyCommand);
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("One of the above."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.setApplicationDescription(programDescription());
    const bool isUnderstood = parser.parse(arguments);
    const QString name = parser.positionalArguments().value(0);
    for (const auto &row : commandRows) {
        if (name == QLatin1String(row.name)) {
            m_command = row.command;
            return true;
        }
    }
    if (!isUnderstood)
        setError(parser.errorText());
    else if (!name.isEmpty())
        setError(QStringLiteral("unknown command \"%1\": use %2").arg(name, namesOf(everyCommand)));
    else if (parser.isSet(QStringLiteral("help")))
        m_information = parser.helpText();
    else if (parser.isSet(QStringLiteral("version")))
        m_information = version();
    else
        setError(QLatin1String("a command is missing: use ") + namesOf(everyCommand));
    return false;
}

void PxCommandLine::readOptions(const QStringList &arguments)
{
    const CommandRow &row = rowOf(m_command);
    addOptions(&m_parser, int(m_command));
    m_parser.setApplicationDescription(QString::fromUtf8(row.description));
    m_parser.addPositionalArgument(QLatin1String(row.name), QStringLiteral("The command."),
                                   QLatin1String(row.name));
    if (row.argument)
        m_parser.addPositionalArgument(QString::fromUtf8(row.argument->name),
                                       QString::fromUtf8(row.argument->meaning));
    const bool isUnderstood = m_parser.parse(arguments);
    if (!isUnderstood)
        setError(m_parser.errorText());
    else if (isSet("help"))
        m_information = m_parser.helpText();
    else if (isSet("version"))
        m_information = version();
    else if (checkArguments())
        readValues();
}

/** Whether there are as many as the command takes. */
bool PxCommandLine::checkArguments()
{
    const CommandRow &row = rowOf(m_command);
    const QStringList given = m_parser.positionalArguments().mid(1);
    const int most = row.argument ? row.argument->most : 0;
    if (row.argument && given.size() < row.argument->least)
        setError(QLatin1String(row.name) + QLatin1String(" needs the name of a product"));
    else if (given.size() > most)
        setError(QStringLiteral("\"%1\" is one argument too many").arg(given.value(most)));
    return m_error.isEmpty();
}

void PxCommandLine::readValues()
{
    for (const auto &row : optionRows) {
        const QString name = QLatin1String(row.name);
        if (row.value && m_parser.optionNames().contains(name) && m_parser.value(name).isEmpty())
            setError(QStringLiteral("--%1 needs a value").arg(name));
    }
    m_productClasses = readKeywords(QStringLiteral("class"), productClassKeywords);
    m_criterion = readKeywords(QStringLiteral("criterion"), ::criterionKeywords);
    m_pageCount = readNumber(QStringLiteral("pages"), 1, PxProductReport::maximumPageCount);
    m_keyAccount = readNumber(QStringLiteral("key-account"), 0, std::numeric_limits<int>::max());
    if (!QStringList{QString(), QStringLiteral("en"), QStringLiteral("de")}.contains(language()))
        setError(QStringLiteral("--lang needs en or de, not \"%1\"").arg(language()));
}

/** Below the minimum when the option is not given. */
int PxCommandLine::readNumber(const QString &option, int minimum, int maximum)
{
    if (!m_parser.optionNames().contains(option))
        return minimum - 1;
    bool isNumber = false;
    const int number = m_parser.value(option).toInt(&isNumber);
    if (!isNumber || number < minimum || number > maximum)
        setError(QStringLiteral("--%1 needs a number from %2 to %3, not \"%4\"")
                     .arg(option, QString::number(minimum), QString::number(maximum),
                          m_parser.value(option)));
    return number;
}

/** 0 when the option is not given. */
template <typename ENUM>
ENUM PxCommandLine::readKeywords(const QString &option, const QHash<QString, ENUM> &keywords)
{
    int flags = 0;
    if (!m_parser.optionNames().contains(option))
        return static_cast<ENUM>(flags);
    pxForEachPart(m_parser.value(option), [&](QStringView part) {
        const QString keyword = part.toString();
        const ENUM flag = EnumHelper::decodeKeyword(keyword, keywords, static_cast<ENUM>(0));
        const int all = std::accumulate(keywords.begin(), keywords.end(), 0, std::bit_or<int>());
        if (flag == 0)
            setError(
                QStringLiteral("--%1 does not know \"%2\": use %3")
                    .arg(option, keyword,
                         keywordsOf(static_cast<ENUM>(all), keywords).join(QLatin1String(", "))));
        flags |= flag;
    });
    return static_cast<ENUM>(flags);
}

void PxCommandLine::setError(const QString &error)
{
    if (m_error.isEmpty())
        m_error = error + QLatin1String(" (\"pxcatalogue --help\" explains everything)");
}
