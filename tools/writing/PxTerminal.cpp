#include "writing/PxTerminal.h"

#include "writing/PxOutputFile.h"
#include "writing/PxOutputText.h"
#include "writing/PxVisibleText.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <iterator>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/** Scripts and pictures that terminals draw across two columns. */
constexpr struct
{
    uint first;
    uint last;
} wide[] = {
    {0x1100, 0x115E},   // initial consonants of Hangul
    {0x2E80, 0x303E},   // radicals and punctuation
    {0x3041, 0xA4CF},   // kana, ideographs, Yi
    {0xA960, 0xA97C},   // old consonants of Hangul
    {0xAC00, 0xD7A3},   // Hangul
    {0xF900, 0xFAFF},   // compatibility ideographs
    {0xFE30, 0xFE6F},   // compatibility forms
    {0xFF01, 0xFF60},   // full-width forms
    {0xFFE0, 0xFFE6},   // full-width signs
    {0x1F300, 0x1F64F}, // pictures and faces
    {0x1F680, 0x1F6FF}, // transport and signs
    {0x1F900, 0x1FAFF}, // more pictures
    {0x20000, 0x3FFFD}, // more ideographs
};

template <typename OUTPUT>
bool writeOutput(const OUTPUT &output)
{
    const int error = PxOutputFile::write(STDOUT_FILENO, output);
    if (error != 0 && error != EPIPE)
        PxTerminal::printError("cannot write the output: " + PxOutputFile::errorText(error));
    return error == 0;
}

} // namespace

void PxTerminal::prepare()
{
    std::signal(SIGXFSZ, SIG_IGN);
    // open() takes the lowest free descriptor. Writing to one that was closed still fails.
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) == -1 && open("/dev/null", O_RDONLY) == -1)
            return;
    }
}

int PxTerminal::columns(int ofPipe)
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("COLUMNS", &isNumber);
    if (isNumber && wanted > 0)
        return wanted;
    if (isatty(STDOUT_FILENO) == 0)
        return ofPipe;
    winsize size{};
    const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : 100;
}

bool PxTerminal::hasColours()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR") &&
           qgetenv("TERM") != "dumb";
}

int PxTerminal::width(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        return 0;
    default:
        return std::any_of(std::begin(wide), std::end(wide),
                           [character](const auto &range) {
                               return range.first <= character && character <= range.last;
                           })
                   ? 2
                   : 1;
    }
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

QString PxTerminal::wrapped(const QString &text, int width)
{
    QString lines;
    int column = 0;
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const bool isBreak = column > 0 && column + 1 + word.size() > width;
        if (column > 0)
            lines += QLatin1Char(isBreak ? '\n' : ' ');
        column = isBreak || column == 0 ? word.size() : column + 1 + word.size();
        lines += word;
    }
    return lines;
}

bool PxTerminal::write(const PxOutputText &text)
{
    return writeOutput(text.toUtf8());
}

bool PxTerminal::write(const QJsonObject &json)
{
    return writeOutput(PxVisibleText::json(QJsonDocument(json).toJson()).toUtf8());
}

bool PxTerminal::write(const PxJsonLines &lines)
{
    return writeOutput(lines);
}

void PxTerminal::printError(const QString &message)
{
    PxOutputText line;
    line.addLine(QCoreApplication::applicationName() + ": " + message);
    PxOutputFile::write(STDERR_FILENO, line.toUtf8()); // a failure cannot be reported
}

void PxTerminal::showProgress(const QString &text)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    const QString name = text.isEmpty() ? QString() : QCoreApplication::applicationName() + ": ";
    const QString line = PxVisibleText::line(name + text);
    PxOutputFile::write(STDERR_FILENO, ("\r" + line + "\x1b[K").toUtf8());
}
