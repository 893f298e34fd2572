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
    return QString("it has %1 bytes, no more than %2 are read")
        .arg(QString::number(size), QString::number(PxFindingsBaseline::maximumSize));
}

/** The problem is worded to follow the name of the file. */
std::optional<PxProblem> load(const QString &path, QByteArray *contents)
{
    const auto problem = [](const QString &reason) {
        return PxProblem{"cannot be read: " + reason};
    };
    // Without waiting for a pipe, and what is asked is the file that was opened.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor == -1)
        return problem(PxOutputFile::errorText(errno));
    struct stat info = {};
    const bool isRegular = fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode);
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || !isRegular)
        return problem("it is no regular file");
    *contents = file.read(PxFindingsBaseline::maximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return problem(file.errorString());
    if (contents->size() > PxFindingsBaseline::maximumSize)
        return problem(tooLarge(qMax<qint64>(info.st_size, contents->size())));
    return std::nullopt;
}

} // namespace

PxFindingsBaseline::PxFindingsBaseline(const PxCheckReport &report)
{
    for (const PxFinding &finding : report.findings)
        m_counts[PxFindingIdentity(finding, report.catalogueNames)] += finding.count();
}

std::optional<PxProblem> PxFindingsBaseline::read(const QString &path)
{
    QByteArray json;
    std::optional<PxProblem> problem = load(path, &json);
    if (!problem)
        problem = readJson(json);
    if (problem)
        problem->text.prepend(QString("the baseline \"%1\" ").arg(path));
    return problem;
}

std::optional<PxProblem> PxFindingsBaseline::readJson(const QByteArray &text)
{
    QJsonParseError error{};
    const QJsonObject json = QJsonDocument::fromJson(text, &error).object();
    std::optional<PxProblem> problem;
    if (error.error != QJsonParseError::NoError)
        problem = PxProblem{"is no JSON: " + error.errorString()};
    else if (json["format"].toInt() != formatVersion)
        problem = PxProblem{QString("has another format than %1").arg(formatVersion)};
    else if (!json["findings"].isArray())
        problem = PxProblem{"has no \"findings\""};
    else
        problem = readFindings(json["findings"].toArray());
    if (problem)
        problem->text += "; write it again with --write-baseline";
    return problem;
}

std::optional<PxProblem> PxFindingsBaseline::readFindings(const QJsonArray &findings)
{
    for (const QJsonValue &value : findings) {
        for (const char *key : keys) {
            if (!value[key].isString())
                return PxProblem{QString("has a finding without \"%1\"").arg(key)};
        }
        const int count = value["count"].toInt();
        if (count < 1)
            return PxProblem{"has a finding without \"count\""};
        m_counts[{value["path"].toString(), value["tag"].toString(), value["message"].toString()}] =
            count;
    }
    return std::nullopt;
}

QByteArray PxFindingsBaseline::toJson() const
{
    QJsonArray findings;
    for (auto it = m_counts.begin(); it != m_counts.end(); ++it)
        findings.append(QJsonObject{{"path", it.key().path()},
                                    {"tag", it.key().tag()},
                                    {"message", it.key().message()},
                                    {"count", *it}});
    const QJsonObject json{{"format", formatVersion}, {"findings", findings}};
    return PxVisibleText::json(QJsonDocument(json).toJson()).toUtf8();
}

std::optional<PxProblem> PxFindingsBaseline::write(const QString &path) const
{
    const QByteArray json = toJson();
    std::optional<PxProblem> problem =
        json.size() > maximumSize
            ? PxProblem{tooLarge(json.size()) + "; leave out tags with --skip"}
            : PxOutputFile::write(path, json);
    if (problem)
        problem->text.prepend(QString("the baseline \"%1\" cannot be written: ").arg(path));
    return problem;
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
