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
    static const QRegularExpression ourLink(QStringLiteral("\\[(?=[^\\[\\]]*\\]\\()"));
    text.replace(QLatin1Char('{'), QLatin1String("{{"))
        .replace(QLatin1Char('}'), QLatin1String("}}"))
        .replace(ourLink, QStringLiteral("\\["));
    return {{QStringLiteral("text"), text}};
}

/** There is no level for matters of style. */
QString levelOf(PxSeverity severity)
{
    switch (severity) {
    case PxSeverity::Error:
        return QStringLiteral("error");
    case PxSeverity::Warning:
        return QStringLiteral("warning");
    default:
        return QStringLiteral("note");
    }
}

QJsonObject severityOf(PxSeverity severity)
{
    return {{QStringLiteral("severity"), QLatin1String(PxCheckTags::severityName(severity))}};
}

QJsonObject ruleOf(const PxCheckTag &tag)
{
    const QJsonObject configuration{
        {QStringLiteral("level"), levelOf(tag.severity)},
        {QStringLiteral("enabled"), tag.severity != PxSeverity::Pedantic}};
    return {{QStringLiteral("id"), QLatin1String(tag.name)},
            {QStringLiteral("shortDescription"), textOf(QString::fromUtf8(tag.summary))},
            {QStringLiteral("fullDescription"), textOf(QString::fromUtf8(tag.explanation))},
            {QStringLiteral("help"), textOf(QString::fromUtf8(tag.explanation))},
            {QStringLiteral("defaultConfiguration"), configuration},
            {QStringLiteral("properties"), severityOf(tag.severity)}};
}

QJsonObject driver()
{
    QJsonArray rules;
    for (const PxCheckTag *tag : PxCheckTags::all())
        rules.append(ruleOf(*tag));
    return {{QStringLiteral("name"), QCoreApplication::applicationName()},
            {QStringLiteral("version"), QCoreApplication::applicationVersion()},
            {QStringLiteral("rules"), rules}};
}

QJsonObject regionOf(const PxPlace &place)
{
    return {{QStringLiteral("startLine"), place.line},
            {QStringLiteral("startColumn"), place.column},
            {QStringLiteral("endLine"), place.endLine},
            {QStringLiteral("endColumn"), place.endColumn}};
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
        results.append(result(
            finding, QStringLiteral("%1:%2").arg(hash, QString::number(++occurrences[hash]))));
    }
    QJsonArray notes;
    for (auto it = m_report.tagsNotChecked.begin(); it != m_report.tagsNotChecked.end(); ++it)
        notes.append(QJsonObject{
            {QStringLiteral("level"), QStringLiteral("note")},
            {QStringLiteral("associatedRule"), QJsonObject{{QStringLiteral("id"), it.key()}}},
            {QStringLiteral("message"), textOf(QLatin1String("not checked ") + it.value())}});
    const QJsonObject catalogue{
        {QStringLiteral("description"),
         textOf(QStringLiteral("the resource directory of the catalogue"))}};
    const QJsonObject run{
        {QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver()}}},
        {QStringLiteral("columnKind"), QStringLiteral("unicodeCodePoints")},
        {QStringLiteral("originalUriBaseIds"),
         QJsonObject{{QLatin1String(catalogueBase), catalogue}}},
        {QStringLiteral("invocations"),
         QJsonArray{QJsonObject{{QStringLiteral("executionSuccessful"), true},
                                {QStringLiteral("toolConfigurationNotifications"), notes}}}},
        {QStringLiteral("results"), results}};
    return {{QStringLiteral("$schema"),
             QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
            {QStringLiteral("version"), QStringLiteral("2.1.0")},
            {QStringLiteral("runs"), QJsonArray{run}}};
}

QJsonObject PxFindingsSarif::result(const PxFinding &finding, const QString &fingerprint) const
{
    QStringList texts{finding.text()};
    if (!finding.now.isEmpty())
        texts.append(QLatin1String("now: ") + finding.now);
    if (!finding.hint.isEmpty())
        texts.append(QLatin1String("hint: ") + finding.hint);
    const QJsonObject location{{QStringLiteral("artifactLocation"), artifact(finding.place.path)},
                               {QStringLiteral("region"), regionOf(finding.place)}};
    return {{QStringLiteral("ruleId"), QLatin1String(finding.tag->name)},
            {QStringLiteral("ruleIndex"), PxCheckTags::all().indexOf(finding.tag)},
            {QStringLiteral("level"), levelOf(finding.severity)},
            {QStringLiteral("occurrenceCount"), finding.count()},
            {QStringLiteral("message"), textOf(texts.join(QLatin1Char('\n')))},
            {QStringLiteral("locations"),
             QJsonArray{QJsonObject{{QStringLiteral("physicalLocation"), location}}}},
            {QStringLiteral("partialFingerprints"),
             QJsonObject{{QStringLiteral("findingIdentity/v1"), fingerprint}}},
            {QStringLiteral("properties"), severityOf(finding.severity)}};
}

/** Relative to where the program runs, the root of a checkout; else to the catalogue. */
QJsonObject PxFindingsSarif::artifact(const QString &path) const
{
    const QString fromHere =
        QDir::current().relativeFilePath(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    const QString uri = QStringLiteral("uri");
    if (!fromHere.startsWith(QLatin1String("../")) && QDir::isRelativePath(fromHere))
        return {{uri, encoded(fromHere)}};
    return {{uri, encoded(m_report.catalogueNames.value(path, QFileInfo(path).fileName()))},
            {QStringLiteral("uriBaseId"), QLatin1String(catalogueBase)}};
}
