#include "output/PxTagHelp.h"

#include "check/findings/PxCheckTags.h"

static QString codeBlock(const QString &text)
{
    return "```xml\n" + text + (text.endsWith('\n') ? "```\n" : "\n```\n");
}

QString PxTagHelp::markdown(const PxCheckTag &tag)
{
    QString text = QString("**%1**: %2.\n\n%3\n")
                       .arg(PxCheckTags::severityName(tag.severity), escaped(tag.summary),
                            escaped(tag.explanation));
    if (tag.needsCatalogue)
        text += "\nOnly found when the whole catalogue is checked.\n";
    if (qstrlen(tag.bad) > 0) // without the mark at the place of the finding
        text += QString("\nFor example in `%1`:\n\n").arg(tag.file) +
                codeBlock(QString::fromUtf8(tag.bad).remove(QChar(0x00BB)));
    if (qstrlen(tag.good) > 0)
        text += "\nRepaired:\n\n" + codeBlock(tag.good);
    return text;
}

QString PxTagHelp::escaped(const QString &text)
{
    QString markdown;
    for (const QChar character : text) {
        if (QString("\\`*_[]<>|&").contains(character))
            markdown += '\\';
        markdown += character;
    }
    return markdown;
}

QString PxTagHelp::url(const PxCheckTag &tag)
{
    return QString(PX_DOCUMENTATION_URL "/checks.md#") + tag.name;
}
