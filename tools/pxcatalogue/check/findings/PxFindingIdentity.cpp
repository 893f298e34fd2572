#include "check/findings/PxFindingIdentity.h"

#include <tuple>

namespace {

/** The message without what changes between runs: line numbers and the path of the catalogue. */
QString withoutLine(const PxFinding &finding, const QHash<QString, QString> &catalogueNames)
{
    const QString other = finding.related.path;
    QString message = finding.message;
    return message.replace(PxFinding::relatedMark, other == finding.place.path
                                                       ? "line"
                                                       : catalogueNames.value(other, other));
}

} // namespace

PxFindingIdentity::PxFindingIdentity(const PxFinding &finding,
                                     const QHash<QString, QString> &catalogueNames)
    : m_path(catalogueNames.value(finding.place.path, finding.place.path))
    , m_tag(QLatin1String(finding.tag->name))
    , m_message(finding.restCount > 0 ? restMessage() : withoutLine(finding, catalogueNames))
{}

QString PxFindingIdentity::restMessage()
{
    return "and more in this file";
}

bool PxFindingIdentity::operator<(const PxFindingIdentity &other) const
{
    return std::tie(m_path, m_tag, m_message) <
           std::tie(other.m_path, other.m_tag, other.m_message);
}
