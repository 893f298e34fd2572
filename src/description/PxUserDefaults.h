#pragma once

#include <QDomDocument>
#include <QSet>
#include <QString>

/** The files with the user's own default templates, in the directory of the user defaults. */
class PxUserDefaults
{
public:
    PxUserDefaults();

    /**
     * Reads the names of the files now, so that document() opens only files that are there. If they
     * cannot be read, or are too many, each file is looked for as without this.
     */
    void list();
    /**
     * The file of a product; null if it is missing or damaged, which is not reported: few users
     * have default templates of their own. May be called from any thread.
     */
    QDomDocument document(const QString &productName) const;

private:
    QString m_directory; // with a slash at the end
    bool m_isListed = false;
    QSet<QString> m_fileNames;
};
