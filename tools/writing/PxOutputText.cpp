#include "writing/PxOutputText.h"

#include "writing/PxVisibleText.h"

namespace {

QString quoted(QString value)
{
    const bool isPlain = !value.contains(',') && !value.contains('"') && value == value.trimmed();
    return isPlain ? value : '"' + value.replace('"', "\"\"") + '"';
}

} // namespace

PxOutputText::PxOutputText(const QString &lines)
{
    const QString text = lines.endsWith('\n') ? lines.chopped(1) : lines;
    for (const QString &line : text.split('\n'))
        addLine(line);
}

void PxOutputText::addLine(std::initializer_list<Piece> pieces)
{
    for (const Piece &piece : pieces) {
        const QByteArray text = PxVisibleText::line(piece.text).toUtf8();
        m_bytes += piece.colour ? piece.colour + text + "\x1b[0m" : text;
    }
    m_bytes += '\n';
}

void PxOutputText::addCommaSeparated(const QStringList &values)
{
    QStringList cells;
    for (const QString &value : values)
        cells.append(quoted(value));
    addLine(cells.join(','));
}

void PxOutputText::addTabSeparated(const QStringList &values)
{
    QByteArray separator;
    for (const QString &value : values) {
        m_bytes += separator + PxVisibleText::line(value).toUtf8();
        separator = "\t";
    }
    m_bytes += '\n';
}
