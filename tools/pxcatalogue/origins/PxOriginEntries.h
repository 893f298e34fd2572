#pragma once

#include "origins/PxOriginFile.h"

#include <QByteArray>
#include <QMap>
#include <QVector>

class PxReport;
struct PxShownProduct;

/** An element of a file; null if there is none. */
struct PxOriginElement
{
    const PxOriginFile *file = nullptr;
    const PxSourceElement *element = nullptr;
};

/** Which of several elements the library uses for a value of the report. */
class PxOriginEntries
{
public:
    /** Only so many rows of a table have elements of their own. */
    static constexpr int maximumRows = 1000;

    /** The files must outlive this; `report` is the one about the product. */
    PxOriginEntries(const PxShownProduct &shown, const PxReport &report,
                    const PxOriginFiles &files);

    /** `name` is for example "spine[shown]"; `row` is that of the table with the value. */
    PxOriginElement find(const QByteArray &name, int row) const;

private:
    void add(const char *name, const PxSourceElement *element);
    void addSpines(int pageCount);
    void addSurroundings(const PxShownProduct &shown);
    void addBarcodes(const QVector<int> &pages, int pageCount);
    void addContentRedirects(const QVector<int> &pages);
    void addRotationRedirects(const QVector<int> &pages);
    void addTemplates(const PxShownProduct &shown, const PxOriginFile &userDefaults);
    void addLogo(const PxProductType &type, const PxOriginFile &theme);

    const PxOriginFile &m_product;
    QMap<QByteArray, QVector<PxOriginElement>> m_entries; // by name; one, or one for each row
};
