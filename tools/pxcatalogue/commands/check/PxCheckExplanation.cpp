#include "commands/check/PxCheckExplanation.h"

#include "check/PxCheckLimits.h"
#include "check/findings/PxCheckTags.h"
#include "output/PxTagHelp.h"
#include "report/PxTextTable.h"
#include "writing/PxTerminal.h"

#include <QJsonArray>
#include <QStringList>

namespace {

constexpr int formatVersion = 1; // raise it when JSON changes, except for new members
constexpr ushort mark = 0x00BB;  // stands in the example before the place of the finding

constexpr const char *markdownStart =
    "# What `pxcatalogue check` finds\n"
    "\n"
    "<!-- Written by the program: pxcatalogue check --list-tags --format markdown > docs/checks.md "
    "-->\n"
    "\n"
    "Every finding has a tag, which names its kind. How to use the command: "
    "[pxcatalogue](pxcatalogue.md#check). The rules\n"
    "behind the findings: [file formats](file-format.md).\n"
    "\n"
    "| Severity | Means |\n"
    "|---|---|\n"
    "| error | a product or theme is lost, ambiguous, or can break a caller |\n"
    "| warning | data is dropped or changed without a message |\n"
    "| info | surprising but legal |\n"
    "| pedantic | a matter of style; only found with `--pedantic` |\n"
    "\n"
    "A single mistake may cause thousands of findings. So these are bounded:\n"
    "\n"
    "| Limit | Value |\n"
    "|---|---|\n"
    "| findings of one tag that are listed for a file; the last one says how many more there are | "
    "%1 |\n"
    "| characters of a message | %2 |\n"
    "| entries of a list that are checked | %3 |\n"
    "\n"
    "Hints are guesses, which take time: if thousands of names are wrong, not all of them get a "
    "hint.\n"
    "\n";

QString severityOf(const PxCheckTag &tag)
{
    return PxCheckTags::severityName(tag.severity);
}

QString indented(const QString &text)
{
    QString lines = text;
    while (lines.endsWith('\n'))
        lines.chop(1);
    return "    " + lines.replace('\n', "\n    ") + '\n';
}

/** The example, with a line that points at the place of the finding. */
QString pointedExampleOf(const PxCheckTag &tag)
{
    const QString bad = QString::fromUtf8(tag.bad);
    const int place = bad.indexOf(QChar(mark));
    const int column = place - 1 - bad.lastIndexOf('\n', place);
    int lineEnd = bad.indexOf('\n', place);
    lineEnd = lineEnd < 0 ? bad.size() : lineEnd;
    return indented(
        QString(bad).insert(lineEnd, '\n' + QString(column, ' ') + '^').remove(place, 1));
}

QJsonValue exampleOf(const PxCheckTag &tag)
{
    if (qstrlen(tag.bad) == 0)
        return QJsonValue();
    return QJsonObject{{"file", tag.file},
                       {"bad", QString::fromUtf8(tag.bad).remove(QChar(mark))},
                       {"good", QString::fromUtf8(tag.good)}};
}

} // namespace

QString PxCheckExplanation::of(const PxCheckTag &tag)
{
    QString text = QString("%1 (%2): %3\n\n%4\n")
                       .arg(tag.name, severityOf(tag), tag.summary,
                            PxTerminal::wrapped(tag.explanation, PxTerminal::columns()));
    if (tag.needsCatalogue)
        text += "\nOnly found when the whole catalogue is checked.\n";
    if (qstrlen(tag.bad) > 0)
        text += QString("\nFor example in %1:\n\n").arg(tag.file) + pointedExampleOf(tag);
    if (qstrlen(tag.good) > 0)
        text += "\nRepaired:\n\n" + indented(tag.good);
    return text;
}

QString PxCheckExplanation::table()
{
    PxTextTable table;
    table.addColumn(QString(), PxTextTable::Kind::Key);
    table.addColumn(QString(), PxTextTable::Kind::Key);
    table.addColumn(QString(), PxTextTable::Kind::Text);
    for (const PxCheckTag *tag : PxCheckTags::all())
        table.addRow({tag->name, severityOf(*tag), tag->summary});
    return table.lines(PxTerminal::columns(PxTerminal::unlimited)).join('\n') + '\n';
}

QString PxCheckExplanation::markdown()
{
    QString text = QString::fromUtf8(markdownStart)
                       .arg(PxCheckLimits::findingsOfTag)
                       .arg(PxCheckLimits::messageLength)
                       .arg(PxCheckLimits::listParts) +
                   "| Tag | Severity | Finding |\n|---|---|---|\n";
    for (const PxCheckTag *tag : PxCheckTags::all())
        text += QString("| [%1](#%1) | %2 | %3 |\n")
                    .arg(tag->name, severityOf(*tag), PxTagHelp::escaped(tag->summary));
    for (const PxCheckTag *tag : PxCheckTags::all())
        text += QString("\n## %1\n\n").arg(tag->name) + PxTagHelp::markdown(*tag);
    return text;
}

QJsonObject PxCheckExplanation::json(const QVector<const PxCheckTag *> &tags)
{
    QJsonArray array;
    for (const PxCheckTag *tag : tags)
        array.append(QJsonObject{{"tag", tag->name},
                                 {"severity", severityOf(*tag)},
                                 {"summary", QString::fromUtf8(tag->summary)},
                                 {"explanation", QString::fromUtf8(tag->explanation)},
                                 {"needsCatalogue", tag->needsCatalogue},
                                 {"example", exampleOf(*tag)}});
    return {{"format", formatVersion}, {"tags", array}};
}
