#include "writing/PxOutputText.h"

#include "writing/PxVisibleText.h"

#include <QStringList>

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
