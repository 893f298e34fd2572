#include "commands/check/PxCheckExplanation.h"

#include "check/PxCheckLimits.h"
#include "check/findings/PxCheckTags.h"
#include "report/PxTextTable.h"
#include "writing/PxTerminal.h"

#include <QStringList>

namespace {

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
    "| warning | data is dropped or changed in silence |\n"
    "| info | surprising but legal |\n"
    "| pedantic | a matter of style; only found with `--pedantic` |\n"
    "\n"
    "Some files have thousands of findings, most of them by accident. So these are bounded:\n"
    "\n"
    "| Limit | Value |\n"
    "|---|---|\n"
    "| findings of one tag that are told of a file; the last one says how many more there are | "
    "%1 |\n"
    "| letters of a message | %2 |\n"
    "| entries of a list that are checked | %3 |\n"
    "\n"
    "Hints are guesses, which take time: of many thousands of names not every one gets a hint.\n"
    "\n";

QString severityOf(const PxCheckTag &tag)
{
    return QLatin1String(PxCheckTags::severityName(tag.severity));
}

/** Without the mark, which is only for the place of the finding. */
QString exampleOf(const PxCheckTag &tag)
{
    return QString::fromUtf8(tag.bad).remove(QChar(0x00BB));
}

QString indented(const QString &text)
{
    QString lines = text;
    while (lines.endsWith(QLatin1Char('\n')))
        lines.chop(1);
    return QLatin1String("    ") + lines.replace(QLatin1Char('\n'), QLatin1String("\n    ")) +
           QLatin1Char('\n');
}

/** The example with a line below the place of the finding that points at it. */
QString pointedExampleOf(const PxCheckTag &tag)
{
    const QString bad = QString::fromUtf8(tag.bad);
    const int mark = bad.indexOf(QChar(0x00BB));
    const int column = mark - 1 - bad.lastIndexOf(QLatin1Char('\n'), mark);
    int lineEnd = bad.indexOf(QLatin1Char('\n'), mark);
    lineEnd = lineEnd < 0 ? bad.size() : lineEnd;
    return indented(QString(bad)
                        .insert(lineEnd, QLatin1Char('\n') + QString(column, QLatin1Char(' ')) +
                                             QLatin1Char('^'))
                        .remove(mark, 1));
}

QString escaped(const QString &text)
{
    QString markdown;
    for (const QChar character : text) {
        if (QStringLiteral("\\`*_[]<>|&").contains(character))
            markdown += QLatin1Char('\\');
        markdown += character;
    }
    return markdown;
}

QString codeBlock(const QString &text)
{
    const bool isEnded = text.endsWith(QLatin1Char('\n'));
    return QLatin1String("```xml\n") + text + QLatin1String(isEnded ? "```\n" : "\n```\n");
}

QString sectionOf(const PxCheckTag &tag)
{
    QString text =
        QStringLiteral("\n## %1\n\n**%2**: %3.\n\n%4\n")
            .arg(QLatin1String(tag.name), severityOf(tag), escaped(QString::fromUtf8(tag.summary)),
                 escaped(QString::fromUtf8(tag.explanation)));
    if (tag.needsCatalogue)
        text += QLatin1String("\nOnly found when the whole catalogue is checked.\n");
    if (qstrlen(tag.bad) > 0)
        text += QStringLiteral("\nFor example in `%1`:\n\n").arg(QLatin1String(tag.file)) +
                codeBlock(exampleOf(tag));
    if (qstrlen(tag.good) > 0)
        text += QLatin1String("\nRepaired:\n\n") + codeBlock(QString::fromUtf8(tag.good));
    return text;
}

} // namespace

QString PxCheckExplanation::of(const PxCheckTag &tag)
{
    QString text =
        QStringLiteral("%1 (%2): %3\n\n%4\n")
            .arg(QLatin1String(tag.name), severityOf(tag), QString::fromUtf8(tag.summary),
                 PxTerminal::wrapped(QString::fromUtf8(tag.explanation), PxTerminal::columns()));
    if (tag.needsCatalogue)
        text += QLatin1String("\nOnly found when the whole catalogue is checked.\n");
    if (qstrlen(tag.bad) > 0)
        text += QStringLiteral("\nFor example in %1:\n\n").arg(QLatin1String(tag.file)) +
                pointedExampleOf(tag);
    if (qstrlen(tag.good) > 0)
        text += QLatin1String("\nRepaired:\n\n") + indented(QString::fromUtf8(tag.good));
    return text;
}

QString PxCheckExplanation::table()
{
    PxTextTable table;
    table.addColumn(QString(), PxTextTable::Kind::Key);
    table.addColumn(QString(), PxTextTable::Kind::Key);
    table.addColumn(QString(), PxTextTable::Kind::Text);
    for (const PxCheckTag *tag : PxCheckTags::all())
        table.addRow({QLatin1String(tag->name), severityOf(*tag), QString::fromUtf8(tag->summary)});
    return table.lines(PxTerminal::columns()).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString PxCheckExplanation::markdown()
{
    QString text = QString::fromUtf8(markdownStart)
                       .arg(PxCheckLimits::findingsOfTag)
                       .arg(PxCheckLimits::messageLength)
                       .arg(PxCheckLimits::listParts) +
                   QLatin1String("| Tag | Severity | Finding |\n|---|---|---|\n");
    for (const PxCheckTag *tag : PxCheckTags::all())
        text += QStringLiteral("| [%1](#%1) | %2 | %3 |\n")
                    .arg(QLatin1String(tag->name), severityOf(*tag),
                         escaped(QString::fromUtf8(tag->summary)));
    for (const PxCheckTag *tag : PxCheckTags::all())
        text += sectionOf(*tag);
    return text;
}
