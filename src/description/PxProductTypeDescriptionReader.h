#pragma once

#include "PxProductPropertiesExport.h"

#include <PxProductType.h>

#include <QDir>
#include <QHash>
#include <QPair>
#include <QStringList>

class PxProductTypeDescription;
class QFileInfo;

/** Reads the product files of one directory. The caller owns the descriptions. */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescriptionReader
{
public:
    explicit PxProductTypeDescriptionReader(const QDir &directory);
    PxProductTypeDescriptionReader(const PxProductTypeDescriptionReader &other);
    PxProductTypeDescriptionReader &operator=(const PxProductTypeDescriptionReader &other);
    virtual ~PxProductTypeDescriptionReader();

    /** The names of product files: "*.xml". */
    static QStringList fileFilter();

    /**
     * The description of every product that the directory's files name.
     *
     * Of two files for one product the one that the directory lists later counts; files that cannot
     * be read, or whose product is unknown, are left out.
     */
    QHash<PxProductType, PxProductTypeDescription *> readDir();
    /**
     * The type 0 and null, with a warning, when the file cannot be read; an invalid type beside a
     * description when the file names no known product.
     */
    QPair<PxProductType, PxProductTypeDescription *> readFile(const QFileInfo &file);

private:
    QDir m_directory;
};
