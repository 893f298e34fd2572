#pragma once

#include <QDebug>
#include <QLoggingCategory>
#include <QString>
#include <QVector>

#include <utility>

/** A message of the library, with what a QMessageLogger would be given. */
struct PxMessage
{
    /** QtDebugMsg or QtWarningMsg. */
    QtMsgType type;
    /** A literal, as `function` is, or null: it must outlive a kept message. */
    const char *file;
    /** The line in the file; 0 if `file` is null. */
    int line;
    /** The function that logs; a literal, or null. */
    const char *function;
    /** Whose rules apply; it must outlive a kept message. Null is Qt's category "default". */
    const QLoggingCategory *category;
    /** The message itself. */
    QString text;

    /** Keeps the message if a PxMessageKeeper lives in this thread, otherwise writes it. */
    void log() const;
};

/**
 * While it lives, messages of the library in this thread are appended to a list and not written.
 *
 * A thread that works for another one must not call the application's message handler. It leaves
 * its list to the other thread, which calls log() for each message. The innermost keeper is used.
 * Destroy keepers in the thread that created them, and the last one first.
 */
class Q_DECL_EXPORT PxMessageKeeper
{
public:
    /** Not null; the list is not owned and must outlive the keeper. */
    explicit PxMessageKeeper(QVector<PxMessage> *messages)
        : m_outer(std::exchange(ourMessages, messages))
    {}
    ~PxMessageKeeper() { ourMessages = m_outer; }
    Q_DISABLE_COPY(PxMessageKeeper)

private:
    friend struct PxMessage;
    // One pointer for all libraries, because the class is exported; nothing is destroyed.
    static inline thread_local QVector<PxMessage> *ourMessages = nullptr;

    QVector<PxMessage> *m_outer;
};

inline void PxMessage::log() const
{
    if (PxMessageKeeper::ourMessages) {
        PxMessageKeeper::ourMessages->append(*this);
        return;
    }
    const QMessageLogger logger(file, line, function);
    const bool isWarning = type == QtWarningMsg;
    QDebug stream = !category   ? (isWarning ? logger.warning() : logger.debug())
                    : isWarning ? logger.warning(*category)
                                : logger.debug(*category);
    stream.nospace().noquote() << text;
}

/**
 * The category of messages whose text nobody relies on, "px.productproperties". Those that programs
 * compare are in Qt's "default". It lives until the process ends, as do the objects that log.
 */
inline const QLoggingCategory *pxLoggingCategory()
{
    static const auto *const category = new QLoggingCategory("px.productproperties");
    return category;
}

/**
 * Logs what is streamed, as QMessageLogger does, at the end of the statement. All messages of the
 * library go through it, so that they can be kept.
 */
class PxMessageLogger
{
public:
    /** The first arguments are those of QMessageLogger; literals, or null. */
    PxMessageLogger(const char *file, int line, const char *function,
                    const QLoggingCategory *category = nullptr)
        : m_message{QtDebugMsg, file, line, function, category, {}}
        , m_stream(&m_message.text)
    {}
    ~PxMessageLogger()
    {
        // QDebug does so only with what it writes itself.
        if (m_stream.autoInsertSpaces() && m_message.text.endsWith(QLatin1Char(' ')))
            m_message.text.chop(1);
        m_message.log();
    }
    Q_DISABLE_COPY(PxMessageLogger)

    /** The stream of a message at debug level. */
    QDebug &debug() { return m_stream; }
    /** The stream of a warning. */
    QDebug &warning()
    {
        m_message.type = QtWarningMsg;
        return m_stream;
    }

private:
    PxMessage m_message;
    QDebug m_stream;
};

/** The stream of a message in pxLoggingCategory() that is written as qDebug() would. */
#define pxDebug                                                                                    \
    PxMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, QT_MESSAGELOG_FUNC,                    \
                    pxLoggingCategory())                                                           \
        .debug
/** The same of a warning. */
#define pxWarning                                                                                  \
    PxMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, QT_MESSAGELOG_FUNC,                    \
                    pxLoggingCategory())                                                           \
        .warning
