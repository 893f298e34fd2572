#include "commands/PxCommandLine.h"

#include "check/words/PxSpelling.h"
#include "commands/PxCommand.h"
#include "writing/PxTerminal.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int helpWidth = 80;

/** Each line that is too long, in several; the others as they are. */
QString wrapped(const QString &text)
{
    QStringList paragraphs = text.split('\n');
    for (QString &paragraph : paragraphs) {
        if (paragraph.size() > helpWidth)
            paragraph = PxTerminal::wrapped(paragraph, helpWidth);
    }
    return paragraphs.join('\n');
}

QString programDescription()
{
    QString description = PxCommand::purposeOfAll() +
                          "\n\nCommands (\"pxcatalogue help COMMAND\" shows the options of one):\n";
    for (const PxCommand *command : PxCommand::all()) {
        const PxCommandUsage usage = command->usage();
        description += "  " + (usage.name + ' ' + usage.arguments.name).leftJustified(17) +
                       usage.description.section('\n', 0, 0) + '\n';
    }
    return description + "\nExit status: " + PxCommand::exitStatusOfAll();
}

bool takes(const PxCommand *command, const QString &option)
{
    const QVector<PxOption> options = command->usage().options;
    return std::any_of(options.begin(), options.end(),
                       [&option](const PxOption &other) { return other.name == option; });
}

QStringList commandNames()
{
    QStringList names;
    for (const PxCommand *command : PxCommand::all())
        names.append(command->usage().name);
    return names;
}

/** The commands that take the option. */
QStringList commandsWith(const QString &option)
{
    QStringList names;
    for (const PxCommand *command : PxCommand::all()) {
        if (takes(command, option))
            names.append(command->usage().name);
    }
    return names;
}

void addOptions(QCommandLineParser *parser, const QVector<PxOption> &options,
                QCommandLineOption::Flags flags = {})
{
    for (const PxOption &option : options) {
        QCommandLineOption added(option.names(), option.description, option.value);
        added.setFlags(flags);
        parser->addOption(added);
    }
}

/** Each option once, though commands explain it differently. */
QVector<PxOption> optionsOfAllCommands()
{
    QVector<PxOption> all;
    QStringList names;
    for (const PxCommand *command : PxCommand::all()) {
        for (const PxOption &option : command->usage().options) {
            if (!names.contains(option.name))
                all.append(option);
            names.append(option.name);
        }
    }
    return all;
}

/** Begins with the name of the program, not with its path. */
QString helpOf(const QCommandLineParser &parser)
{
    const QString program = QCoreApplication::arguments().value(0);
    const QString text = parser.helpText();
    return text.left(text.indexOf(program)) + QCoreApplication::applicationName() +
           text.mid(text.indexOf(program) + program.size());
}

/** `options` are those that would have been understood. */
QString problemOfParsing(const QCommandLineParser &parser, const QVector<PxOption> &options)
{
    if (parser.unknownOptionNames().isEmpty())
        return parser.errorText();
    const QString name = parser.unknownOptionNames().constFirst();
    const QString problem =
        QString("unknown option \"%1%2\"").arg(name.size() > 1 ? "--" : "-", name);
    const QStringList others = commandsWith(name);
    if (!others.isEmpty())
        return problem + ": it belongs to " + others.join(", ");
    if (name.size() == 1) // nearly every name has the letter
        return problem;
    QStringList names;
    for (const PxOption &option : options)
        names.append(option.name);
    QStringList nearest = PxSpelling::nearestThree(name, names);
    for (QString &near : nearest)
        near.prepend("--");
    return nearest.isEmpty() ? problem : problem + ": " + PxSpelling::didYouMean(nearest);
}

QString oneTooMany(const QString &argument)
{
    return QString("\"%1\" is one argument too many").arg(argument);
}

QString problemOfCommand(const QString &name)
{
    const QStringList names = commandNames();
    const QString near =
        PxSpelling::didYouMean(PxSpelling::nearestThree(name, names + QStringList("help")));
    return QString("unknown command \"%1\": %2")
        .arg(name, near.isEmpty() ? "use " + names.join(", ") : near);
}

} // namespace

PxCommandLine::PxCommandLine(const QStringList &words)
{
    QCommandLineParser parser;
    addOptions(&parser, optionsOfAllCommands(), QCommandLineOption::HiddenFromHelp);
    addOptions(&parser, PxOption::ofEveryCommand());
    parser.addPositionalArgument("command", "One of the above.");
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.setApplicationDescription(wrapped(programDescription()));
    parser.parse(words);
    QStringList understood = words;
    const QStringList arguments = parser.positionalArguments();
    if (arguments.value(0) == "help") { // is the same as --help
        understood.removeAt(words.size() - arguments.size());
        understood.insert(1, "--help");
        const bool areWords =
            arguments.size() > 2 && !arguments[1].startsWith('-') && !arguments[2].startsWith('-');
        if (areWords)
            setProblem(oneTooMany(arguments[2]));
    }
    findCommand(understood, &parser);
    if (m_command)
        readOptions(understood);
}

QStringList PxCommandLine::keywords(const QString &option) const
{
    for (const PxOption &other : m_command->usage().allOptions()) {
        if (other.name == option)
            return other.keywordsIn(value(option));
    }
    return QStringList();
}

/** Options may precede the command; they are read once the command is known. */
void PxCommandLine::findCommand(const QStringList &words, QCommandLineParser *parser)
{
    const bool isUnderstood = parser->parse(words);
    const QString name = parser->positionalArguments().value(0);
    m_command = PxCommand::find(name);
    if (m_command)
        return;
    if (!isUnderstood)
        setProblem(problemOfParsing(*parser, optionsOfAllCommands() + PxOption::ofEveryCommand()));
    else if (!name.isEmpty() && name != "help")
        setProblem(problemOfCommand(name));
    else if (!informs(*parser))
        setProblem("a command is missing: use " + commandNames().join(", "));
}

void PxCommandLine::readOptions(const QStringList &words)
{
    const PxCommandUsage usage = m_command->usage();
    const QVector<PxOption> options = usage.options + PxOption::ofEveryCommand();
    const QVector<PxOption> ofCatalogue = PxOption::ofCatalogue();
    const auto refused =
        usage.hasCatalogues ? QCommandLineOption::HiddenFromHelp : QCommandLineOption::Flags();
    addOptions(&m_parser, usage.options);
    addOptions(&m_parser, ofCatalogue, refused);
    addOptions(&m_parser, PxOption::ofEveryCommand().mid(ofCatalogue.size()));
    m_parser.setApplicationDescription(wrapped(usage.description));
    m_parser.addPositionalArgument(usage.name, "The command.", usage.name);
    if (usage.arguments.most > 0)
        m_parser.addPositionalArgument(usage.arguments.name, usage.arguments.meaning);
    if (!m_parser.parse(words))
        setProblem(problemOfParsing(m_parser, options));
    else if (!informs(m_parser)) {
        checkArguments();
        checkValues(options);
    }
}

/** Answers --help or --version; false if neither is given. */
bool PxCommandLine::informs(const QCommandLineParser &parser)
{
    if (parser.isSet("help"))
        m_information = helpOf(parser);
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
        setProblem(oneTooMany(given.value(usage.arguments.most)));
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
}

/** Only the first problem is reported. */
void PxCommandLine::setProblem(const QString &problem)
{
    const QString explained =
        m_command ? QString("help %1\" explains the options").arg(m_command->usage().name)
                  : "--help\" explains everything";
    if (!m_problem)
        m_problem = PxProblem{problem + " (\"pxcatalogue " + explained + ')'};
}
