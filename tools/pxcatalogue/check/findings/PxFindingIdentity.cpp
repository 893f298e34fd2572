#include "check/findings/PxFindingIdentity.h"

#include <QRegularExpression>

#include <tuple>

namespace {

/** A message may name another place, which changes as the finding's own does. */
QString withoutPlaces(QString message, const QHash<QString, QString> &catalogueNames)
{
    static const QRegularExpression ourLine(QStringLiteral("\\bline \\d+"));
    // A word is searched from its beginning only: from each of its letters takes far longer.
    static const QRegularExpression ourPath(
        QStringLiteral("(?<![^\\s\"])([^\\s\"]+\\.xml)(:\\d+)*"),
        QRegularExpression::CaseInsensitiveOption);
    message.replace(ourLine, QStringLiteral("line"));
    QString without;
    int end = 0; // of what is copied
    for (auto paths = ourPath.globalMatch(message); paths.hasNext();) {
        const QRegularExpressionMatch path = paths.next();
        without += message.midRef(end, path.capturedStart() - end);
        without += catalogueNames.value(path.captured(1), path.captured(1));
        end = path.capturedEnd();
    }
    return without + message.midRef(end);
}

} // namespace

PxFindingIdentity::PxFindingIdentity(const PxFinding &finding,
                                     const QHash<QString, QString> &catalogueNames)
    : m_path(catalogueNames.value(finding.place.path, finding.place.path))
    , m_tag(QLatin1String(finding.tag->name))
    , m_message(finding.restCount > 0 ? restMessage()
                                      : withoutPlaces(finding.message, catalogueNames))
{}

QString PxFindingIdentity::restMessage()
{
    return QStringLiteral("and more in this file");
}

bool PxFindingIdentity::operator<(const PxFindingIdentity &other) const
{
    return std::tie(m_path, m_tag, m_message) <
           std::tie(other.m_path, other.m_tag, other.m_message);
}
