#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>

/** Product and theme files that nobody should write, to be loaded all the same. */
namespace PxHostileFiles {

struct File
{
    QByteArray name; // without ".xml", unless it is a picture
    QByteArray content;
};

/** Different names that share one hash; fewer under the sanitizers. */
QByteArrayList collidingNames(int count);

/** Files that no loader may accept. */
QList<File> unreadable();

/** Well-formed files of real products, by their names, that hold what is wild or far too much. */
QList<File> wild();

/** Well-formed theme files of the same kind. */
QList<File> wildThemes();

/** Pictures that take time or memory, or lie about their size, by the names of their files. */
QList<File> pictures();

} // namespace PxHostileFiles
