#include "shell/PxManual.h"

#include "commands/PxCommand.h"
#include "writing/PxTerminal.h"

#include <QCoreApplication>

namespace {

constexpr int lineWidth = 78;

struct Item
{
    const char *name;
    const char *meaning;
};

constexpr Item variables[] = {
    {"PX_RESOURCE_DIRS", "The resource directories of a catalogue, as --resources names them."},
    {"PX_THEMES_DIR", "The directory of the theme files, unless the command line names a catalogue "
                      "or --themes."},
    {"PX_USER_DEFAULTS_DIR", "The directory of the user's default templates, unless the command "
                             "line names a catalogue or --user-defaults."},
    {"PX_THREADS", "How many threads read files and write pages, a number above 0. Default: one "
                   "for each core, at most eight."},
    {"LANGUAGE, LC_ALL, LC_MESSAGES, LANG", "The locale, whose language display names have unless "
                                            "--lang is given."},
    {"COLUMNS", "How wide tables and texts may be. Default: as the terminal; in a pipe or file "
                "they are not shortened."},
    {"NO_COLOR", "If it is set, findings of check have no colours unless --color is given. The "
                 "terminal \"dumb\" (TERM) has none either."},
};

constexpr Item files[] = {
    {"share/PxProductProperties", "The resource directory beside the library, which is read unless "
                                  "--resources or PX_RESOURCE_DIRS names others."},
    {"producttypes.xml, products/, products/legacy/, frames.xml",
     "In a resource directory: which products there are, a file for each of them, the older ones, "
     "and frames."},
    {"themes/", "In a resource directory: the theme files."},
    {"defaults/", "In the directory that --resources names: the user's default templates."},
    {"~/.local/share/pxcatalogue/defaults/",
     "The user's default templates without --resources. XDG_DATA_HOME replaces ~/.local/share."},
    {"share/xml/PxProductProperties/catalog.xml",
     "An XML catalogue of the schemas of product and theme files, for XML_CATALOG_FILES."},
};

/** In ASCII, so that every formatter and every locale shows the same characters. */
QString escaped(const QString &text)
{
    QString escaped;
    for (const uint character : text.toUcs4()) {
        if (character == '\\')
            escaped += "\\e";
        else if (character == '-')
            escaped += "\\-"; // may be copied into a command line
        else if (character < 0x80)
            escaped += QChar(character);
        else
            escaped += QString("\\[u%1]")
                           .arg(character, 4, 16, QChar('0'))
                           .toUpper()
                           .replace("\\[U", "\\[u");
    }
    return escaped;
}

/** Lines of text; none of them is taken for a request. */
QString filled(const QString &text)
{
    QString lines;
    for (const QString &line : PxTerminal::wrapped(text, lineWidth).split('\n')) {
        const bool isLikeRequest = line.startsWith('.') || line.startsWith('\'');
        lines += (isLikeRequest ? "\\&" : "") + escaped(line) + '\n';
    }
    return lines;
}

QString bold(const QString &text)
{
    return "\\fB" + escaped(text) + "\\fR";
}

QString italic(const QString &text)
{
    return "\\fI" + escaped(text) + "\\fR";
}

QString section(const QString &title)
{
    return ".SH " + title + '\n';
}

QString options(const QVector<PxOption> &options)
{
    QString text;
    for (const PxOption &option : options) {
        QStringList names;
        for (const QString &name : option.names())
            names.append(bold((name.size() == 1 ? "-" : "--") + name));
        text += ".TP\n" + names.join(", ") +
                (option.value.isEmpty() ? QString() : ' ' + italic(option.value)) + '\n' +
                filled(option.description);
    }
    return text;
}

template <std::size_t COUNT>
QString explained(const Item (&items)[COUNT])
{
    QString text;
    for (const Item &item : items)
        text += ".TP\n" + bold(item.name) + '\n' + filled(item.meaning);
    return text;
}

QString synopsis(const PxCommandUsage &usage)
{
    QString line = bold(QCoreApplication::applicationName() + ' ' + usage.name);
    if (!usage.arguments.name.isEmpty())
        line += ' ' + italic(usage.arguments.name);
    return line + " [" + italic("OPTIONS") + "]\n";
}

QString command(const PxCommandUsage &usage)
{
    QString text = ".SS " + bold(usage.name) + ' ' + italic(usage.arguments.name) + '\n';
    const QStringList paragraphs = usage.description.split('\n');
    for (int i = 0; i < paragraphs.size(); ++i)
        text += (i > 0 ? ".PP\n" : "") + filled(paragraphs[i]);
    if (!usage.arguments.name.isEmpty())
        text += ".TP\n" + italic(usage.arguments.name) + '\n' + filled(usage.arguments.meaning);
    return text + options(usage.options);
}

QString allCommands()
{
    QString text;
    for (const PxCommand *each : PxCommand::all())
        text += command(each->usage());
    return text;
}

QString synopsisOfAll()
{
    QStringList lines;
    for (const PxCommand *each : PxCommand::all())
        lines.append(synopsis(each->usage()));
    lines.append(bold(QCoreApplication::applicationName() + " help") + " [" + italic("COMMAND") +
                 "]\n");
    return lines.join(".br\n");
}

} // namespace

PxOutputText PxManual::text()
{
    const QString name = QCoreApplication::applicationName();
    const QString version = QCoreApplication::applicationVersion();
    return PxOutputText(
        QString(".TH %1 1 \"\" \"%2 %3\" \"Product properties\"\n")
            .arg(name.toUpper(), name, version) +
        section("NAME") +
        escaped(name + " - the products of a catalogue: show, draw, check, compare") + '\n' +
        section("SYNOPSIS") + synopsisOfAll() + section("DESCRIPTION") +
        filled(PxCommand::purposeOfAll().simplified()) + section("COMMANDS") + allCommands() +
        section("OPTIONS OF EVERY COMMAND") + options(PxOption::ofEveryCommand()) +
        section("ENVIRONMENT") + explained(variables) + section("FILES") + explained(files) +
        section("EXIT STATUS") + filled(PxCommand::exitStatusOfAll()) + section("SEE ALSO") +
        filled(PX_DOCUMENTATION_URL "/pxcatalogue.md"));
}
