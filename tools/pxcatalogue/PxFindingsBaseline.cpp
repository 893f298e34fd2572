#include "PxFindingsBaseline.h"

#include "writing/PxOutputFile.h"
#include "writing/PxVisibleText.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int formatVersion = 1;
constexpr const char *keys[] = {"path", "tag", "message"};

} // namespace

PxFindingsBaseline::PxFindingsBaseline(const PxCheckReport &report)
{
    for (const PxFinding &finding : report.findings)
        ++m_counts[PxFindingIdentity(finding, report.catalogueNames)];
}

QString PxFindingsBaseline::read(const QString &path)
{
    const QString what = QStringLiteral("the baseline \"%1\" ").arg(path);
    const QString remedy = QStringLiteral("; write it again with --write-baseline");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return what + QLatin1String("cannot be read: ") + file.errorString();
    QJsonParseError error{};
    const QJsonObject json = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (error.error != QJsonParseError::NoError)
        return what + QLatin1String("is no JSON: ") + error.errorString() + remedy;
    if (json[QLatin1String("format")].toInt() != formatVersion)
        return what + QStringLiteral("has another format than %1").arg(formatVersion) + remedy;
    if (!json[QLatin1String("findings")].isArray())
        return what + QLatin1String("has no \"findings\"") + remedy;
    const QString problem = readFindings(json[QLatin1String("findings")].toArray());
    return problem.isEmpty() ? QString() : what + problem + remedy;
}

QString PxFindingsBaseline::readFindings(const QJsonArray &findings)
{
    for (const QJsonValue &value : findings) {
        for (const char *key : keys) {
            if (!value[QLatin1String(key)].isString())
                return QStringLiteral("has a finding without \"%1\"").arg(QLatin1String(key));
        }
        const int count = value[QLatin1String("count")].toInt();
        if (count < 1)
            return QStringLiteral("has a finding without \"count\"");
        m_counts[{value[QLatin1String("path")].toString(), value[QLatin1String("tag")].toString(),
                  value[QLatin1String("message")].toString()}] = count;
    }
    return QString();
}

QString PxFindingsBaseline::write(const QString &path) const
{
    QJsonArray findings;
    for (auto it = m_counts.begin(); it != m_counts.end(); ++it)
        findings.append(QJsonObject{{QStringLiteral("path"), it.key().path()},
                                    {QStringLiteral("tag"), it.key().tag()},
                                    {QStringLiteral("message"), it.key().message()},
                                    {QStringLiteral("count"), *it}});
    const QJsonObject json{{QStringLiteral("format"), formatVersion},
                           {QStringLiteral("findings"), findings}};
    const QString problem =
        PxOutputFile::write(path, PxVisibleText::json(QJsonDocument(json).toJson()).toUtf8());
    return problem.isEmpty()
               ? QString()
               : QStringLiteral("the baseline \"%1\" cannot be written: %2").arg(path, problem);
}

void PxFindingsBaseline::hide(PxCheckReport *report) const
{
    QMap<PxFindingIdentity, int> left = m_counts;
    QVector<PxFinding> unknown;
    for (const PxFinding &finding : qAsConst(report->findings)) {
        const auto known = left.find(PxFindingIdentity(finding, report->catalogueNames));
        if (known == left.end() || *known == 0)
            unknown.append(finding);
        else
            --*known;
    }
    report->knownCount += report->findings.size() - unknown.size();
    report->findings = unknown;
}
