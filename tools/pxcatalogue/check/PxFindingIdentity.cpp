#include "check/PxFindingIdentity.h"

#include <QRegularExpression>

#include <tuple>

namespace {

/** A message may name another place, which changes as the finding's own does. */
QString withoutPlaces(QString message, const QHash<QString, QString> &catalogueNames)
{
    static const QRegularExpression ourLine(QStringLiteral("\\bline \\d+"));
    static const QRegularExpression ourPath(QStringLiteral("([^\\s\"]+\\.xml)(:\\d+)*"),
                                            QRegularExpression::CaseInsensitiveOption);
    message.replace(ourLine, QStringLiteral("line"));
    int from = 0;
    for (QRegularExpressionMatch path = ourPath.match(message); path.hasMatch();
         path = ourPath.match(message, from)) {
        const QString name = catalogueNames.value(path.captured(1), path.captured(1));
        message.replace(path.capturedStart(), path.capturedLength(), name);
        from = path.capturedStart() + name.size();
    }
    return message;
}

} // namespace

PxFindingIdentity::PxFindingIdentity(const PxFinding &finding,
                                     const QHash<QString, QString> &catalogueNames)
    : m_path(catalogueNames.value(finding.place.path, finding.place.path))
    , m_tag(QLatin1String(finding.tag->name))
    , m_message(withoutPlaces(finding.message, catalogueNames))
{}

bool PxFindingIdentity::operator<(const PxFindingIdentity &other) const
{
    return std::tie(m_path, m_tag, m_message) <
           std::tie(other.m_path, other.m_tag, other.m_message);
}
