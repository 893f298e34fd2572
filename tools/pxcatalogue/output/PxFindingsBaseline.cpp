#include "output/PxFindingsBaseline.h"

#include "writing/PxOutputFile.h"
#include "writing/PxVisibleText.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int formatVersion = 1;
constexpr const char *keys[] = {"path", "tag", "message"};

QString tooLarge(qint64 size)
{
    return QString("it has %1 bytes, but the limit is %2")
        .arg(QString::number(size), QString::number(PxFindingsBaseline::maximumSize));
}

/** The problem is worded to follow the name of the file. */
std::optional<PxProblem> load(const QString &path, QByteArray *contents)
{
    const auto problem = [](const QString &reason) {
        return PxProblem{"cannot be read: " + reason};
    };
    // Opening a pipe must not block. fstat() checks the file that is open, whatever its path is
    // now.
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

/** Subtracts `count` from a number, but not below 0; returns how much it subtracted. */
int take(int *number, int count)
{
    const int taken = qMin(*number, count);
    *number -= taken;
    return taken;
}

/** Does that with all entries of the tag and file; only if the baseline has a rest for them. */
int takeAny(QMap<PxFindingIdentity, int> *left, const PxFindingIdentity &finding, int count)
{
    const auto rest = left->find({finding.path(), finding.tag(), PxFindingIdentity::restMessage()});
    if (rest == left->end())
        return 0;
    int taken = take(&*rest, count);
    for (auto it = left->lowerBound({finding.path(), finding.tag(), QString()});
         taken < count && it != left->end() && it.key().path() == finding.path() &&
         it.key().tag() == finding.tag();
         ++it)
        taken += take(&*it, count - taken);
    return taken;
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
        problem = PxProblem{QString("does not have format %1").arg(formatVersion)};
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

QJsonArray PxFindingsBaseline::jsonOf(const QMap<PxFindingIdentity, int> &counts)
{
    QJsonArray findings;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        findings.append(QJsonObject{{"path", it.key().path()},
                                    {"tag", it.key().tag()},
                                    {"message", it.key().message()},
                                    {"count", *it}});
    return findings;
}

QByteArray PxFindingsBaseline::toJson() const
{
    const QJsonObject json{{"format", formatVersion}, {"findings", jsonOf(m_counts)}};
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
 * Of many findings with the same tag in the same file, only the first are listed; the rest is
 * counted. A repair changes which ones are listed. So, if the baseline has such a rest, only the
 * total of tag and file matters: after the findings that match exactly, it hides those in the rest
 * of the report, then listed ones.
 */
void PxFindingsBaseline::hide(PxCheckReport *report) const
{
    if (m_counts.isEmpty())
        return;
    QMap<PxFindingIdentity, int> left = m_counts;
    QVector<PxFinding> findings;
    findings.swap(report->findings);
    QVector<PxFindingIdentity> identities;
    QVector<int> known; // for each finding, how many the baseline hides
    for (const PxFinding &finding : qAsConst(findings)) {
        identities.append(PxFindingIdentity(finding, report->catalogueNames));
        const auto same = left.find(identities.constLast());
        known.append(finding.restCount > 0 || same == left.end() ? 0 : take(&*same, 1));
    }
    for (const bool isRest : {true, false}) {
        for (int i = 0; i < findings.size(); ++i) {
            if ((findings[i].restCount > 0) == isRest)
                known[i] += takeAny(&left, identities[i], findings[i].count() - known[i]);
        }
    }
    for (int i = 0; i < findings.size(); ++i) {
        const int count = findings[i].count() - known[i];
        report->knownCount += known[i];
        if (findings[i].restCount > 0)
            findings[i].setRest(count);
        if (count > 0)
            report->findings.append(findings[i]);
    }
    addGone(left, report);
}

void PxFindingsBaseline::addGone(const QMap<PxFindingIdentity, int> &left, PxCheckReport *report)
{
    for (auto it = left.begin(); it != left.end() && report->catalogue; ++it) {
        if (*it > 0 && report->tagsChecked.contains(it.key().tag()))
            report->gone.insert(it.key(), *it);
    }
}
