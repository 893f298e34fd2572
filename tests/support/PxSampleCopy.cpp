#include "PxSampleCopy.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

/** Of all files and directories, relative to it. */
static QStringList namesIn(const QString &directory)
{
    QStringList names;
    QDirIterator entries(directory,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        names.append(entries.next().mid(directory.size() + 1));
    return names;
}

PxSampleCopy::PxSampleCopy()
{
    restore();
}

QString PxSampleCopy::read(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void PxSampleCopy::write(const QString &name, const QString &text) const
{
    QFile file(filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0);
}

void PxSampleCopy::replace(const QString &name, const QString &old, const QString &text) const
{
    QString content = read(name);
    QCOMPARE(content.count(old), 1);
    write(name, content.replace(old, text));
}

void PxSampleCopy::restore(const QString &name) const
{
    QFile sample(PX_SAMPLE_DIRECTORY "/" + name);
    QFile file(filePath(name));
    const bool isFile = QFileInfo(file).isFile();
    if (!isFile || !QFileInfo(sample).isFile())
        file.remove();
    if (!sample.open(QIODevice::ReadOnly))
        return;
    // Only what has changed: to make and remove many files again and again is slow on some disks.
    const QByteArray content = sample.readAll();
    if (isFile && file.open(QIODevice::ReadOnly) && file.readAll() == content)
        return;
    file.close();
    QDir().mkpath(QFileInfo(file).path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) >= 0);
}

void PxSampleCopy::restore() const
{
    const QStringList names = namesIn(PX_SAMPLE_DIRECTORY);
    for (const QString &name : namesIn(path())) {
        if (!names.contains(name) && !QFile::remove(filePath(name)))
            QDir(filePath(name)).removeRecursively();
    }
    for (const QString &name : names)
        restore(name);
}
