#include "check/source/PxCheckedFile.h"

#include <PxXMLLoader.h>

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace {

/** The text up to a place, and enough text after it to recognise a fault there. */
QString textUpTo(const QString &text, qint64 line, qint64 column)
{
    constexpr int more = 1024;
    int lineBegin = 0;
    for (int i = 0; i < text.size() && line > 1; ++i) {
        if (PxSourceDocument::endsLine(text, i)) {
            lineBegin = i + 1;
            --line;
        }
    }
    return text.left(int(qMin<qint64>(lineBegin + column + more, text.size())));
}

} // namespace

PxCheckedFile::PxCheckedFile(const QString &path) : m_path(path)
{
    m_document = PxXMLLoader::loadDocument(QFileInfo(path), m_fault);
    readSource();
    if (isRead() && !m_source->connectTo(m_document.documentElement())) {
        m_fault.kind = PxXMLFault::Kind::Unreadable;
        m_fault.message = "the file changes while it is read";
    }
}

void PxCheckedFile::readSource()
{
    QString text;
    QFile file(m_path);
    // If the library gives up without a place, the file has no text, or too much.
    if ((isRead() || m_fault.line > 0) && file.open(QIODevice::ReadOnly)) {
        const QTextCodec *codec = QTextCodec::codecForName(m_fault.encoding.toLatin1());
        const QByteArray bytes = file.read(file.size());
        // Of a file whose encoding nobody knows, at least the declaration can be shown.
        text = codec ? codec->toUnicode(bytes) : QString::fromUtf8(bytes);
        if (text.startsWith(QChar::ByteOrderMark))
            text.remove(0, 1);
        // Reading on after the fault could take very long if it is an exceeded limit.
        const int size = text.size();
        if (!isRead())
            text = textUpTo(text, m_fault.line, m_fault.column);
        m_isSourceWhole = text.size() == size;
    }
    m_source = std::make_unique<PxSourceDocument>(text);
}

PxPlace PxCheckedFile::faultPlace() const
{
    const int line = qMax(1, int(m_fault.line));
    const int column = qMax(1, int(m_fault.column));
    PxPlace place{QString(), line, column, line, column};
    if (!m_source->text().isEmpty())
        place = m_source->place(line, column);
    place.path = m_path;
    return place;
}

PxPlace PxCheckedFile::place(const PxSourceRange &range) const
{
    PxPlace place = m_source->place(range);
    place.path = m_path;
    return place;
}
