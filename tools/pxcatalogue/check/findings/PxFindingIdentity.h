#pragma once

#include "check/findings/PxFinding.h"

#include <QHash>

/**
 * What makes a finding the same one as in another run: file, tag and message.
 *
 * Not the line, which changes with each line above it, and not where the catalogue lies.
 */
class PxFindingIdentity
{
public:
    /** `catalogueNames` tells what the files are called in the catalogue, by their path. */
    PxFindingIdentity(const PxFinding &finding, const QHash<QString, QString> &catalogueNames);
    PxFindingIdentity(const QString &path, const QString &tag, const QString &message)
        : m_path(path)
        , m_tag(tag)
        , m_message(message)
    {}

    /** The message of those that are not told one by one, however many they are. */
    static QString restMessage();

    QString path() const { return m_path; }
    QString tag() const { return m_tag; }
    QString message() const { return m_message; }
    /** All three. */
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
