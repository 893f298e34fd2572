#pragma once

#include <QString>

class PxCommandLine;

/** Where the catalogue is: the directories of the command line, else those of the platform. */
class PxCatalogueDirectories
{
public:
    explicit PxCatalogueDirectories(const PxCommandLine &commandLine);

    /** Tells them to the platform. Answers what is wrong with them, in one line; empty for nothing.
     */
    QString apply() const;
    /** What is wrong with a directory, in one line; empty for nothing. */
    static QString problemOf(const QString &directory);

private:
    bool isCheck() const;
    bool isCheckOfFiles() const;
    QString readResources(QStringList *resources) const;
    QString useGivenOnes() const;
    QString findCatalogue() const;

    const PxCommandLine &m_commandLine;
};
