#pragma once

#include "check/findings/PxFinding.h"

#include <QHash>

/**
 * Identifies a finding across runs: file, tag and message.
 *
 * The line and the directory of the catalogue are not part of it, because both may change.
 */
class PxFindingIdentity
{
public:
    /** `catalogueNames` are the names of files relative to the catalogue, by path. */
    PxFindingIdentity(const PxFinding &finding, const QHash<QString, QString> &catalogueNames);
    PxFindingIdentity(const QString &path, const QString &tag, const QString &message)
        : m_path(path)
        , m_tag(tag)
        , m_message(message)
    {}

    /** The message of a summary, for any number of findings. */
    static QString restMessage();

    QString path() const { return m_path; }
    QString tag() const { return m_tag; }
    QString message() const { return m_message; }
    /** Path, tag and message. */
    QString text() const
    {
        return m_path + QLatin1Char('\n') + m_tag + QLatin1Char('\n') + m_message;
    }

    bool operator<(const PxFindingIdentity &other) const;

private:
    QString m_path;
    QString m_tag;
    QString m_message;
};
