#pragma once

#include "PxProductPropertiesExport.h"

#include <PxProductType.h>

#include <QDir>
#include <QHash>
#include <QPair>
#include <QStringList>

class PxProductTypeDescription;
class PxUserDefaults;
class QFileInfo;

/** Reads the product files of one directory. The caller takes ownership of the descriptions. */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescriptionReader
{
public:
    /** Reads nothing yet; a missing directory has no products. */
    explicit PxProductTypeDescriptionReader(const QDir &directory);
    PxProductTypeDescriptionReader(const PxProductTypeDescriptionReader &other);
    PxProductTypeDescriptionReader &operator=(const PxProductTypeDescriptionReader &other);
    virtual ~PxProductTypeDescriptionReader();

    /** The names of product files: "*.xml". */
    static QStringList fileFilter();

    /**
     * The descriptions of all products that have a file in the directory.
     *
     * If two files name the same product, the one that the directory lists later is used. Files
     * that cannot be read or name an unknown product are skipped. Many files are read in several
     * threads, which end before the call returns; messages are written in the caller's thread.
     */
    QHash<PxProductType, PxProductTypeDescription *> readDir();
    /**
     * Returns type 0 and null, with a warning, if the file cannot be read, and an invalid type with
     * a description if the file names no known product.
     */
    QPair<PxProductType, PxProductTypeDescription *> readFile(const QFileInfo &file);

private:
    using Product = QPair<PxProductType, PxProductTypeDescription *>;

    static Product readFile(const QFileInfo &file, const PxUserDefaults &userDefaults);

    QDir m_directory;
};
