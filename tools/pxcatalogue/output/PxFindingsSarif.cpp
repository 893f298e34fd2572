#include "output/PxFindingsSarif.h"

#include "check/findings/PxCheckTags.h"
#include "check/findings/PxFindingIdentity.h"
#include "output/PxTagHelp.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

namespace {

constexpr const char *catalogueBase = "CATALOGUE";

/** Escapes what the format would read as a placeholder or as a link. */
QJsonObject textOf(QString text)
{
    static const QRegularExpression ourLink("\\[(?=[^\\[\\]]*\\]\\()");
    text.replace('{', "{{").replace('}', "}}").replace(ourLink, "\\[");
    return {{"text", text}};
}

/** SARIF has fewer levels: info and pedantic are both notes. */
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

QJsonObject helpOf(const PxCheckTag &tag)
{
    QJsonObject help = textOf(tag.explanation);
    help.insert("markdown", textOf(PxTagHelp::markdown(tag))["text"]);
    return help;
}

QJsonObject ruleOf(const PxCheckTag &tag)
{
    const QJsonObject configuration{{"level", levelOf(tag.severity)},
                                    {"enabled", tag.severity != PxSeverity::Pedantic}};
    return {{"id", tag.name},
            {"shortDescription", textOf(tag.summary)},
            {"fullDescription", textOf(tag.explanation)},
            {"help", helpOf(tag)},
            {"helpUri", PxTagHelp::url(tag)},
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

/**
 * The location of a file: relative to the working directory, which is usually the root of a
 * checkout, or to the catalogue if the file lies outside of it.
 */
QJsonObject artifactOf(const QString &path, const PxCheckReport &report)
{
    const QString fromHere =
        QDir::current().relativeFilePath(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    const QString uri = "uri";
    if (!fromHere.startsWith("../") && QDir::isRelativePath(fromHere))
        return {{uri, encoded(fromHere)}};
    return {{uri, encoded(report.catalogueNames.value(path, QFileInfo(path).fileName()))},
            {"uriBaseId", catalogueBase}};
}

QJsonObject locationOf(const PxPlace &place, const PxCheckReport &report)
{
    const QJsonObject physical{{"artifactLocation", artifactOf(place.path, report)},
                               {"region", regionOf(place)}};
    return {{"physicalLocation", physical}};
}

/** A repair that needs no decision. */
QJsonObject fixOf(const PxFinding &finding, const PxCheckReport &report)
{
    const QJsonObject replacement{{"deletedRegion", regionOf(finding.place)},
                                  {"insertedContent", QJsonObject{{"text", finding.replacement}}}};
    const QJsonObject change{{"artifactLocation", artifactOf(finding.place.path, report)},
                             {"replacements", QJsonArray{replacement}}};
    return {{"description", textOf(finding.hint)}, {"artifactChanges", QJsonArray{change}}};
}

QJsonObject resultOf(const PxFinding &finding, const QString &fingerprint,
                     const PxCheckReport &report)
{
    QStringList texts{finding.text()};
    if (!finding.now.isEmpty())
        texts.append("now: " + finding.now);
    if (!finding.hint.isEmpty())
        texts.append("hint: " + finding.hint);
    QJsonObject result{{"ruleId", finding.tag->name},
                       {"ruleIndex", PxCheckTags::all().indexOf(finding.tag)},
                       {"level", levelOf(finding.severity)},
                       {"occurrenceCount", finding.count() + finding.otherPlaces},
                       {"message", textOf(texts.join('\n'))},
                       {"locations", QJsonArray{locationOf(finding.place, report)}},
                       {"partialFingerprints", QJsonObject{{"findingIdentity/v1", fingerprint}}},
                       {"properties", severityOf(finding.severity)}};
    if (!finding.related.path.isEmpty()) {
        QJsonObject related = locationOf(finding.related, report);
        related.insert("message", textOf("also here"));
        result.insert("relatedLocations", QJsonArray{related});
    }
    if (!finding.replacement.isNull())
        result.insert("fixes", QJsonArray{fixOf(finding, report)});
    return result;
}

QJsonArray resultsOf(const PxCheckReport &report)
{
    QJsonArray results;
    QHash<QString, int> occurrences;
    for (const PxFinding &finding : report.findings) {
        const QByteArray identity =
            PxFindingIdentity(finding, report.catalogueNames).text().toUtf8();
        const QString hash = QString::fromLatin1(
            QCryptographicHash::hash(identity, QCryptographicHash::Sha256).toHex().left(32));
        const QString number = QString::number(++occurrences[hash]);
        results.append(resultOf(finding, hash + ':' + number, report));
    }
    return results;
}

/** The tags that were not checked. */
QJsonArray notesOf(const PxCheckReport &report)
{
    QJsonArray notes;
    for (auto it = report.tagsNotChecked.begin(); it != report.tagsNotChecked.end(); ++it)
        notes.append(QJsonObject{{"level", "note"},
                                 {"associatedRule", QJsonObject{{"id", it.key()}}},
                                 {"message", textOf("not checked " + it.value())}});
    return notes;
}

} // namespace

QJsonObject PxFindingsSarif::of(const PxCheckReport &report)
{
    const QJsonObject catalogue{{"description", textOf("the resource directory of the catalogue")}};
    const QJsonObject invocation{{"executionSuccessful", true},
                                 {"toolConfigurationNotifications", notesOf(report)}};
    const QJsonObject run{{"tool", QJsonObject{{"driver", driver()}}},
                          {"columnKind", "unicodeCodePoints"},
                          {"originalUriBaseIds", QJsonObject{{catalogueBase, catalogue}}},
                          {"invocations", QJsonArray{invocation}},
                          {"results", resultsOf(report)}};
    return {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
            {"version", "2.1.0"},
            {"runs", QJsonArray{run}}};
}
