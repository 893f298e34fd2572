#pragma once

#include <QDomElement>
#include <QSet>
#include <QString>

/**
 * Records what is asked of the elements of XML documents while it lives, whoever asks.
 *
 * One at a time, and for one thread.
 */
class PxReadingRecorder
{
public:
    PxReadingRecorder();
    ~PxReadingRecorder();
    Q_DISABLE_COPY(PxReadingRecorder)

    /** By path, as in "themes/theme@id" for an attribute and "themes/theme" for a child element. */
    QSet<QString> names() const { return m_names; }

    void record(const QDomNode &element, QChar separator, const QString &name);

private:
    QSet<QString> m_names;
};
