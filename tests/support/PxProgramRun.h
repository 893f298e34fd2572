#pragma once

#include <QJsonObject>
#include <QMap>
#include <QStringList>

/** What a program did with the sample catalogue, in a German locale and a terminal 150 wide. */
class PxProgramRun
{
public:
    PxProgramRun(const QString &program, const QStringList &arguments,
                 const QMap<QString, QString> &environment = {});

    int status() const { return m_status; }
    /** The lines that are not empty. */
    QStringList output() const { return m_output; }
    /** All the output, as it is. */
    QString printed() const { return m_printed; }
    QStringList errors() const { return m_errors; }
    /** All the output with single blanks instead of alignment and line breaks. */
    QString text() const { return m_output.join(' ').simplified(); }
    const QJsonObject &json() const { return m_json; }
    /** A member of all elements of an array in the JSON. */
    QStringList jsonColumn(const char *array, const char *member) const;

private:
    int m_status = -1; // also of a program that crashes
    QString m_printed;
    QStringList m_output;
    QStringList m_errors;
    QJsonObject m_json;
};
