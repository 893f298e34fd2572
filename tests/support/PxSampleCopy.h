#pragma once

#include <QString>
#include <QTemporaryDir>

/** A copy of the sample catalogue, whose files a test may change. */
class PxSampleCopy
{
public:
    PxSampleCopy();

    QString path() const { return m_directory.path(); }
    QString filePath(const QString &name) const { return m_directory.filePath(name); }
    /** Both in UTF-8. A file that is not there is empty. */
    QString read(const QString &name) const;
    void write(const QString &name, const QString &text) const;
    /** Writes a file with one text instead of another that it has once. */
    void replace(const QString &name, const QString &old, const QString &text) const;
    /** Makes a file what it is in the sample, if it is there at all. */
    void restore(const QString &name) const;
    /** Makes the whole copy what the sample is. */
    void restore() const;

private:
    QTemporaryDir m_directory;
};
