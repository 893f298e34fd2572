#include "PxLogRecorder.h"

#include <QMutex>

namespace {

QMutex ourMutex;
QList<PxLogRecorder::Entry> ourEntries;

void record(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    const QMutexLocker lock(&ourMutex);
    ourEntries.append({level, text, QString::fromUtf8(context.file), context.line,
                       QString::fromUtf8(context.function), QString::fromUtf8(context.category)});
}

} // namespace

PxLogRecorder::PxLogRecorder()
{
    ourEntries.clear();
    m_previous = qInstallMessageHandler(record);
}

PxLogRecorder::~PxLogRecorder()
{
    qInstallMessageHandler(m_previous);
}

QList<PxLogRecorder::Entry> PxLogRecorder::entries() const
{
    const QMutexLocker lock(&ourMutex);
    return ourEntries;
}

QStringList PxLogRecorder::texts() const
{
    QStringList texts;
    for (const Entry &entry : entries())
        texts.append(entry.text);
    return texts;
}
