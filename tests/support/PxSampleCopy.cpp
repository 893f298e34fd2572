#include "PxSampleCopy.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

PxSampleCopy::PxSampleCopy()
{
    const QDir sample(PX_SAMPLE_DIRECTORY);
    QDirIterator files(sample.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        restore(sample.relativeFilePath(files.next()));
}

QString PxSampleCopy::read(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void PxSampleCopy::write(const QString &name, const QString &text) const
{
    QFile file(filePath(name));
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
    QFile::remove(filePath(name));
    QFile sample(QDir(PX_SAMPLE_DIRECTORY).filePath(name));
    if (!sample.open(QIODevice::ReadOnly))
        return;
    QDir().mkpath(QFileInfo(filePath(name)).path());
    QFile file(filePath(name)); // QFile::copy() would wait for the disk, a hundred times
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(sample.readAll()) >= 0);
}
