#include "output/PxFindingsBaseline.h"

#include "writing/PxOutputFile.h"
#include "writing/PxVisibleText.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int formatVersion = 1;
constexpr const char *keys[] = {"path", "tag", "message"};

QString tooLarge(qint64 size)
{
    return QStringLiteral("it has %1 bytes, no more than %2 are read")
        .arg(QString::number(size), QString::number(PxFindingsBaseline::maximumSize));
}

/** Answers what is wrong, in words that follow the name of the file; empty for nothing. */
QString load(const QString &path, QByteArray *contents)
{
    const QString problem = QStringLiteral("cannot be read: ");
    // Without waiting for a pipe, and what is asked is the file that was opened.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor == -1)
        return problem + PxOutputFile::errorText(errno);
    struct stat info = {};
    const bool isRegular = fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode);
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || !isRegular)
        return problem + QLatin1String("it is no regular file");
    *contents = file.read(PxFindingsBaseline::maximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return problem + file.errorString();
    if (contents->size() > PxFindingsBaseline::maximumSize)
        return problem + tooLarge(qMax<qint64>(info.st_size, contents->size()));
    return QString();
}

} // namespace

PxFindingsBaseline::PxFindingsBaseline(const PxCheckReport &report)
{
    for (const PxFinding &finding : report.findings)
        m_counts[PxFindingIdentity(finding, report.catalogueNames)] += finding.count();
}

QString PxFindingsBaseline::read(const QString &path)
{
    QByteArray json;
    QString problem = load(path, &json);
    if (problem.isEmpty())
        problem = readJson(json);
    return problem.isEmpty() ? QString()
                             : QStringLiteral("the baseline \"%1\" %2").arg(path, problem);
}

QString PxFindingsBaseline::readJson(const QByteArray &text)
{
    const QString remedy = QStringLiteral("; write it again with --write-baseline");
    QJsonParseError error{};
    const QJsonObject json = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        return QLatin1String("is no JSON: ") + error.errorString() + remedy;
    if (json[QLatin1String("format")].toInt() != formatVersion)
        return QStringLiteral("has another format than %1").arg(formatVersion) + remedy;
    if (!json[QLatin1String("findings")].isArray())
        return QLatin1String("has no \"findings\"") + remedy;
    const QString problem = readFindings(json[QLatin1String("findings")].toArray());
    return problem.isEmpty() ? QString() : problem + remedy;
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

QByteArray PxFindingsBaseline::toJson() const
{
    QJsonArray findings;
    for (auto it = m_counts.begin(); it != m_counts.end(); ++it)
        findings.append(QJsonObject{{QStringLiteral("path"), it.key().path()},
                                    {QStringLiteral("tag"), it.key().tag()},
                                    {QStringLiteral("message"), it.key().message()},
                                    {QStringLiteral("count"), *it}});
    const QJsonObject json{{QStringLiteral("format"), formatVersion},
                           {QStringLiteral("findings"), findings}};
    return PxVisibleText::json(QJsonDocument(json).toJson()).toUtf8();
}

QString PxFindingsBaseline::write(const QString &path) const
{
    const QByteArray json = toJson();
    const QString problem =
        json.size() > maximumSize
            ? tooLarge(json.size()) + QLatin1String("; leave out tags with --skip")
            : PxOutputFile::write(path, json);
    return problem.isEmpty()
               ? QString()
               : QStringLiteral("the baseline \"%1\" cannot be written: %2").arg(path, problem);
}

/**
 * Which of many findings are told one by one changes with each repair. So, where the baseline has
 * such a rest, the number counts: first what is not told one by one uses up what is left of its tag
 * and file, then the others do.
 */
void PxFindingsBaseline::hide(PxCheckReport *report) const
{
    if (m_counts.isEmpty())
        return;
    QMap<PxFindingIdentity, int> left = m_counts;
    const auto take = [](int *known, int count) {
        const int taken = qMin(*known, count);
        *known -= taken;
        return count - taken;
    };
    const auto takeAny = [&](const PxFinding &finding, int count) {
        const PxFindingIdentity own(finding, report->catalogueNames);
        const auto rest = left.find({own.path(), own.tag(), PxFindingIdentity::restMessage()});
        if (rest == left.end())
            return count;
        count = take(&*rest, count);
        for (auto it = left.lowerBound({own.path(), own.tag(), QString()});
             count > 0 && it != left.end() && it.key().path() == own.path() &&
             it.key().tag() == own.tag();
             ++it)
            count = take(&*it, count);
        return count;
    };
    QVector<PxFinding> unknown;
    for (const PxFinding &finding : qAsConst(report->findings)) {
        const auto known = left.find(PxFindingIdentity(finding, report->catalogueNames));
        if (finding.restCount > 0 || known == left.end() || take(&*known, 1) > 0)
            unknown.append(finding);
        else
            ++report->knownCount;
    }
    for (const bool isRest : {true, false}) {
        QVector<PxFinding> all;
        all.swap(unknown);
        for (PxFinding &finding : all) {
            const bool isOther = (finding.restCount > 0) != isRest;
            const int count = isOther ? finding.count() : takeAny(finding, finding.count());
            report->knownCount += finding.count() - count;
            if (isRest && !isOther)
                finding.setRest(count);
            if (count > 0)
                unknown.append(finding);
        }
    }
    report->findings = unknown;
}
