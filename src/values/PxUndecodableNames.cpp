#include "values/PxUndecodableNames.h"

#include <PxMessage.h>

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>

#include <dirent.h>

static bool isUndecodable(const QByteArray &name)
{
    // Nearly all names are ASCII.
    return std::any_of(name.begin(), name.end(), [](char c) { return c & 0x80; }) &&
           name.right(4).toLower() == ".xml" && QFile::encodeName(QFile::decodeName(name)) != name;
}

int PxUndecodableNames::count(const QString &directory)
{
    DIR *entries = opendir(QFile::encodeName(directory).constData());
    if (!entries)
        return 0;
    int count = 0;
    while (const dirent *entry = readdir(entries)) {
        if (isUndecodable(QByteArray::fromRawData(entry->d_name, int(qstrlen(entry->d_name)))))
            ++count;
    }
    closedir(entries);
    return count;
}

void PxUndecodableNames::warn(const QString &directory)
{
    if (const int files = count(directory))
        pxWarning()
            << "PxUndecodableNames::warn files are not read, for their names are not in the "
               "encoding of the locale:"
            << files << "in" << directory;
}
