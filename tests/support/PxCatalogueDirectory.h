#pragma once

#include <QString>
#include <QTemporaryDir>

/** A resource directory of a test's own, known to the library while it lives. */
class PxCatalogueDirectory
{
public:
    PxCatalogueDirectory();

    /** Writes a file below the directory, and the folders it needs. */
    void write(const char *name, const QByteArray &content) const;
    /** The catalogue of product types: "code class NAME" a line. */
    void writeProductTypes(const QByteArray &lines) const;
    QString filePath(const QString &name) const { return m_directory.filePath(name); }

private:
    QTemporaryDir m_directory;
};
