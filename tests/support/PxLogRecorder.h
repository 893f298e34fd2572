#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/**
 * Records what is logged while it lives, from any thread, instead of printing it.
 *
 * One at a time. QTest::ignoreMessage() sees nothing meanwhile.
 */
class PxLogRecorder
{
public:
    struct Entry
    {
        QtMsgType level;
        QString text;
        QString file;
        int line;
        QString function;
        QString category;
    };

    PxLogRecorder();
    ~PxLogRecorder();
    Q_DISABLE_COPY(PxLogRecorder)

    QList<Entry> entries() const;
    /** The recorded texts; of all levels. */
    QStringList texts() const;

private:
    QtMessageHandler m_previous;
};
