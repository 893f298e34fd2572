#pragma once

#include <PxProductType.h>
#include <description/PxProductTypeDescription.h>

#include <QDir>
#include <QHash>

/** A generated catalogue with the operations that are measured on it. */
class PxMeasuredCatalogue
{
public:
    explicit PxMeasuredCatalogue(const QString &directory);

    /** S: reads and parses each file with Qt alone. */
    void readWithQt() const;
    void loadFiles() const;
    void readRegistry() const;

    void loadThemes() const;
    void readThemesWithQt() const;

    /**
     * The mean number of bytes that a description keeps, and of allocations while a file is loaded.
     */
    double bytesPerDescription() const;
    double allocationsPerFile() const;

    /** The caller owns the descriptions. */
    QHash<PxProductType, PxProductTypeDescription *> read() const;
    QDir products() const { return m_products; }

private:
    QDir m_products;
    QDir m_themes;
    QFileInfoList m_files;
};
