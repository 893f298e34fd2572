#include "PxTerminal.h"

#include <QFile>
#include <QJsonDocument>

#include <QStringList>

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

/** Neither a line break nor an escape sequence nor a change of direction may get through. */
static bool isHarmless(QChar character)
{
    return character.isPrint() || character.isSurrogate();
}

int PxTerminal::columns()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("COLUMNS", &isNumber);
    if (isNumber && wanted > 0)
        return wanted;
    winsize size{};
    if (isatty(STDOUT_FILENO) != 0 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 &&
        size.ws_col > 0)
        return size.ws_col;
    return 100;
}

bool PxTerminal::hasColours()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR") &&
           qgetenv("TERM") != "dumb";
}

QString PxTerminal::printable(const QString &text)
{
    QString printable = text;
    for (QChar &character : printable) {
        if (!isHarmless(character))
            character = QChar::ReplacementCharacter;
    }
    return printable;
}

QByteArray PxTerminal::printable(const QJsonObject &json)
{
    QString printable;
    for (const QChar character : QString::fromUtf8(QJsonDocument(json).toJson())) {
        if (isHarmless(character) || character == QLatin1Char('\n'))
            printable += character;
        else
            printable += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
    return printable.toUtf8();
}

QString PxTerminal::shortened(const QString &text, int width)
{
    if (text.size() <= width)
        return text;
    QString start = text.left(qMax(0, width - 1));
    if (!start.isEmpty() && start.at(start.size() - 1).isHighSurrogate())
        start.chop(1);
    return start + QChar(0x2026);
}

bool PxTerminal::write(const QByteArray &output)
{
    QFile file;
    if (file.open(stdout, QIODevice::WriteOnly) && file.write(output) == output.size() &&
        file.flush())
        return true;
    printError(QStringLiteral("cannot write the output: ") + file.errorString());
    return false;
}

QString PxTerminal::wrapped(const QString &text, int width)
{
    QString lines;
    int column = 0;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const bool isBreak = column > 0 && column + 1 + word.size() > width;
        if (column > 0)
            lines += QLatin1Char(isBreak ? '\n' : ' ');
        column = isBreak || column == 0 ? word.size() : column + 1 + word.size();
        lines += word;
    }
    return lines;
}

void PxTerminal::printError(const QString &message)
{
    const QByteArray line = "pxcatalogue: " + printable(message).toUtf8() + '\n';
    fwrite(line.constData(), 1, size_t(line.size()), stderr);
}
