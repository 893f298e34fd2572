#include "PxProgramRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

static QStringList linesOf(const QString &text)
{
    return text.split('\n', Qt::SkipEmptyParts);
}

PxProgramRun::PxProgramRun(const QString &program, const QStringList &arguments,
                           const QMap<QString, QString> &environment)
{
    QMap<QString, QString> variables = {{"PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY},
                                        {"PX_USER_DEFAULTS_DIR", PX_SAMPLE_DIRECTORY "/defaults"},
                                        {"LC_ALL", "de_DE.UTF-8"},
                                        {"COLUMNS", "150"}};
    for (auto it = environment.begin(); it != environment.end(); ++it)
        variables[it.key()] = it.value();
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    all.remove("PX_THEMES_DIR");
    for (auto it = variables.cbegin(); it != variables.cend(); ++it)
        all.insert(it.key(), it.value());

    QProcess process;
    process.setProcessEnvironment(all);
    process.start(program, arguments);
    if (!process.waitForFinished(110000) || process.exitStatus() != QProcess::NormalExit)
        return;
    const QByteArray output = process.readAllStandardOutput();
    m_status = process.exitCode();
    m_printed = QString::fromUtf8(output);
    m_output = linesOf(m_printed);
    m_errors = linesOf(QString::fromUtf8(process.readAllStandardError()));
    m_json = QJsonDocument::fromJson(output).object();
}

QStringList PxProgramRun::jsonColumn(const char *array, const char *member) const
{
    QStringList texts;
    for (const QJsonValue &element : m_json[array].toArray())
        texts.append(element[member].toString());
    return texts;
}
