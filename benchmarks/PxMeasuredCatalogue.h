#pragma once

#include <PxProductType.h>
#include <description/PxProductTypeDescription.h>

#include <QDir>
#include <QHash>

/** A generated catalogue and the work on it that is measured. */
class PxMeasuredCatalogue
{
public:
    explicit PxMeasuredCatalogue(const QString &directory);

    /** S: reads each file and parses it, with Qt alone. */
    void readWithQt() const;
    void loadFiles() const;
    void readRegistry() const;

    void loadThemes() const;
    void readThemesWithQt() const;

    /** Kept bytes of a description, and allocations while a file is loaded; means. */
    double bytesPerDescription() const;
    double allocationsPerFile() const;

    /** Belongs to the caller. */
    QHash<PxProductType, PxProductTypeDescription *> read() const;
    QDir products() const { return m_products; }

private:
    QDir m_products;
    QDir m_themes;
    QFileInfoList m_files;
};
