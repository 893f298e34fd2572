#include "commands/PxCommandLine.h"

#include "commands/PxCommand.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr const char *introduction =
    "Shows the products of a catalogue as the product properties library understands\n"
    "their files. Tables fit the terminal (COLUMNS): texts that are too long are shortened.\n"
    "\nCommands (--help after a command shows its options):\n";
constexpr const char *exitStatus =
    "\nExit status: 0 done; 1 the answer is \"no\": there is no such product or\n"
    "theme, no other product that is interchangeable, no theme to order, or no variant;\n"
    "2 wrong usage, a directory or a producttypes.xml that cannot be read, or output that\n"
    "cannot be written.\n"
    "\"draw --help\" shows more reasons, \"check --help\" the exit status of check.";

QString programDescription()
{
    QString description = introduction;
    for (const PxCommand *command : PxCommand::all()) {
        const PxCommandUsage usage = command->usage();
        description += "  " + (usage.name + ' ' + usage.arguments.name).leftJustified(17) +
                       usage.description.section('\n', 0, 0) + '\n';
    }
    return description + exitStatus;
}

bool takes(const PxCommand *command, const PxOption &option)
{
    const QVector<PxOption> options = command->usage().options;
    return std::any_of(options.begin(), options.end(),
                       [&option](const PxOption &other) { return other.name == option.name; });
}

/** The names of the commands, or of those that take the option. */
QString commandNames(const PxOption *option = nullptr)
{
    QStringList names;
    for (const PxCommand *command : PxCommand::all()) {
        if (!option || takes(command, *option))
            names.append(command->usage().name);
    }
    return names.join(", ");
}

/** An option shared by adjacent commands comes after the own options of the last of them. */
QVector<PxOption> optionsOfAllCommands()
{
    const QVector<const PxCommand *> commands = PxCommand::all();
    QVector<PxOption> all;
    QStringList names;
    for (int i = 0; i < commands.size(); ++i) {
        for (const PxOption &option : commands[i]->usage().options) {
            const bool isSharedWithNext = i + 1 < commands.size() && takes(commands[i + 1], option);
            if (isSharedWithNext || names.contains(option.name))
                continue;
            names.append(option.name);
            all.append(option);
            all.last().description.prepend(commandNames(&option) + ": ");
        }
    }
    return all + PxOption::ofEveryCommand();
}

void addOptions(QCommandLineParser *parser, const QVector<PxOption> &options)
{
    for (const PxOption &option : options)
        parser->addOption({option.name, option.description, option.value});
}

} // namespace

PxCommandLine::PxCommandLine(const QStringList &words)
{
    findCommand(words);
    if (m_command)
        readOptions(words);
}

QStringList PxCommandLine::keywords(const QString &option) const
{
    for (const PxOption &other : m_command->usage().options) {
        if (other.name == option)
            return other.keywordsIn(value(option));
    }
    return QStringList();
}

/** Options may precede the command; they are read once the command is known. */
void PxCommandLine::findCommand(const QStringList &words)
{
    QCommandLineParser parser;
    addOptions(&parser, optionsOfAllCommands());
    parser.addPositionalArgument("command", "One of the above.");
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.setApplicationDescription(programDescription());
    const bool isUnderstood = parser.parse(words);
    const QString name = parser.positionalArguments().value(0);
    for (const PxCommand *command : PxCommand::all()) {
        if (name == command->usage().name)
            m_command = command;
    }
    if (m_command)
        return;
    if (!isUnderstood)
        setProblem(parser.errorText());
    else if (!name.isEmpty())
        setProblem(QString("unknown command \"%1\": use %2").arg(name, commandNames()));
    else if (!informs(parser))
        setProblem("a command is missing: use " + commandNames());
}

void PxCommandLine::readOptions(const QStringList &words)
{
    const PxCommandUsage usage = m_command->usage();
    const QVector<PxOption> options = usage.options + PxOption::ofEveryCommand();
    addOptions(&m_parser, options);
    m_parser.setApplicationDescription(usage.description);
    m_parser.addPositionalArgument(usage.name, "The command.", usage.name);
    if (usage.arguments.most > 0)
        m_parser.addPositionalArgument(usage.arguments.name, usage.arguments.meaning);
    if (!m_parser.parse(words))
        setProblem(m_parser.errorText());
    else if (!informs(m_parser)) {
        checkArguments();
        checkValues(options);
    }
}

/** Answers --help or --version; false if neither is given. */
bool PxCommandLine::informs(const QCommandLineParser &parser)
{
    if (parser.isSet("help"))
        m_information = parser.helpText();
    else if (parser.isSet("version"))
        m_information = QCoreApplication::applicationName() + ' ' +
                        QCoreApplication::applicationVersion() + '\n';
    return m_information.has_value();
}

void PxCommandLine::checkArguments()
{
    const PxCommandUsage usage = m_command->usage();
    const QStringList given = arguments();
    if (given.isEmpty() && !usage.arguments.needed.isEmpty())
        setProblem(usage.name + " needs " + usage.arguments.needed);
    else if (given.size() > usage.arguments.most)
        setProblem(
            QString("\"%1\" is one argument too many").arg(given.value(usage.arguments.most)));
}

void PxCommandLine::checkValues(const QVector<PxOption> &options)
{
    for (const PxOption &option : options) {
        if (isSet(option.name) && !option.value.isEmpty() && value(option.name).isEmpty())
            setProblem(QString("--%1 needs a value").arg(option.name));
    }
    for (const PxOption &option : options) {
        const auto problem =
            isSet(option.name) ? option.problemOf(value(option.name)) : std::nullopt;
        if (problem)
            setProblem(problem->text);
    }
    const QString language = value("lang");
    if (!QStringList{"", "en", "de"}.contains(language))
        setProblem(QString("--lang needs en or de, not \"%1\"").arg(language));
}

/** Only the first problem is reported. */
void PxCommandLine::setProblem(const QString &problem)
{
    if (!m_problem)
        m_problem = PxProblem{problem + " (\"pxcatalogue --help\" explains everything)"};
}
