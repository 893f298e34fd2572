#include "PxTerminal.h"

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

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

QString PxTerminal::printable(const QString &text)
{
    QString printable = text;
    for (QChar &character : printable) {
        // Neither a line break nor an escape sequence nor a change of direction may get through.
        if (!character.isPrint() && !character.isSurrogate())
            character = QChar::ReplacementCharacter;
    }
    return printable;
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

void PxTerminal::printError(const QString &message)
{
    const QByteArray line = "pxcatalogue: " + printable(message).toUtf8() + '\n';
    fwrite(line.constData(), 1, size_t(line.size()), stderr);
}
