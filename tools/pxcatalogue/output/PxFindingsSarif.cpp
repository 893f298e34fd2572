#include "output/PxFindingsSarif.h"

#include "check/findings/PxCheckTags.h"
#include "check/findings/PxFindingIdentity.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>
#include <QUrl>

namespace {

constexpr const char *catalogueBase = "CATALOGUE";

/** Braces would be the place of an argument, and brackets before a parenthesis a link. */
QJsonObject textOf(QString text)
{
    static const QRegularExpression ourLink("\\[(?=[^\\[\\]]*\\]\\()");
    text.replace('{', "{{").replace('}', "}}").replace(ourLink, "\\[");
    return {{"text", text}};
}

/** There is no level for matters of style. */
QString levelOf(PxSeverity severity)
{
    switch (severity) {
    case PxSeverity::Error:
        return "error";
    case PxSeverity::Warning:
        return "warning";
    default:
        return "note";
    }
}

QJsonObject severityOf(PxSeverity severity)
{
    return {{"severity", PxCheckTags::severityName(severity)}};
}

QJsonObject ruleOf(const PxCheckTag &tag)
{
    const QJsonObject configuration{{"level", levelOf(tag.severity)},
                                    {"enabled", tag.severity != PxSeverity::Pedantic}};
    return {{"id", tag.name},
            {"shortDescription", textOf(tag.summary)},
            {"fullDescription", textOf(tag.explanation)},
            {"help", textOf(tag.explanation)},
            {"defaultConfiguration", configuration},
            {"properties", severityOf(tag.severity)}};
}

QJsonObject driver()
{
    QJsonArray rules;
    for (const PxCheckTag *tag : PxCheckTags::all())
        rules.append(ruleOf(*tag));
    return {{"name", QCoreApplication::applicationName()},
            {"version", QCoreApplication::applicationVersion()},
            {"rules", rules}};
}

QJsonObject regionOf(const PxPlace &place)
{
    return {{"startLine", place.line},
            {"startColumn", place.column},
            {"endLine", place.endLine},
            {"endColumn", place.endColumn}};
}

QString encoded(const QString &path)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

} // namespace

QJsonObject PxFindingsSarif::json() const
{
    QJsonArray results;
    QHash<QString, int> occurrences;
    for (const PxFinding &finding : m_report.findings) {
        const QByteArray identity =
            PxFindingIdentity(finding, m_report.catalogueNames).text().toUtf8();
        const QString hash = QString::fromLatin1(
            QCryptographicHash::hash(identity, QCryptographicHash::Sha256).toHex().left(32));
        results.append(
            result(finding, QString("%1:%2").arg(hash, QString::number(++occurrences[hash]))));
    }
    QJsonArray notes;
    for (auto it = m_report.tagsNotChecked.begin(); it != m_report.tagsNotChecked.end(); ++it)
        notes.append(QJsonObject{{"level", "note"},
                                 {"associatedRule", QJsonObject{{"id", it.key()}}},
                                 {"message", textOf("not checked " + it.value())}});
    const QJsonObject catalogue{{"description", textOf("the resource directory of the catalogue")}};
    const QJsonObject run{
        {"tool", QJsonObject{{"driver", driver()}}},
        {"columnKind", "unicodeCodePoints"},
        {"originalUriBaseIds", QJsonObject{{catalogueBase, catalogue}}},
        {"invocations", QJsonArray{QJsonObject{{"executionSuccessful", true},
                                               {"toolConfigurationNotifications", notes}}}},
        {"results", results}};
    return {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
            {"version", "2.1.0"},
            {"runs", QJsonArray{run}}};
}

QJsonObject PxFindingsSarif::result(const PxFinding &finding, const QString &fingerprint) const
{
    QStringList texts{finding.text()};
    if (!finding.now.isEmpty())
        texts.append("now: " + finding.now);
    if (!finding.hint.isEmpty())
        texts.append("hint: " + finding.hint);
    const QJsonObject location{{"artifactLocation", artifact(finding.place.path)},
                               {"region", regionOf(finding.place)}};
    return {{"ruleId", finding.tag->name},
            {"ruleIndex", PxCheckTags::all().indexOf(finding.tag)},
            {"level", levelOf(finding.severity)},
            {"occurrenceCount", finding.count()},
            {"message", textOf(texts.join('\n'))},
            {"locations", QJsonArray{QJsonObject{{"physicalLocation", location}}}},
            {"partialFingerprints", QJsonObject{{"findingIdentity/v1", fingerprint}}},
            {"properties", severityOf(finding.severity)}};
}

/** Relative to where the program runs, the root of a checkout; else to the catalogue. */
QJsonObject PxFindingsSarif::artifact(const QString &path) const
{
    const QString fromHere =
        QDir::current().relativeFilePath(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    const QString uri = "uri";
    if (!fromHere.startsWith("../") && QDir::isRelativePath(fromHere))
        return {{uri, encoded(fromHere)}};
    return {{uri, encoded(m_report.catalogueNames.value(path, QFileInfo(path).fileName()))},
            {"uriBaseId", catalogueBase}};
}
