#pragma once

#include "origins/PxOriginFile.h"

#include <QJsonArray>
#include <QMap>
#include <QVector>

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

    /** The files must outlive this; `report` is the JSON about the product. */
    PxOriginEntries(const PxShownProduct &shown, const QJsonObject &report,
                    const PxOriginFile &product, const PxOriginFile &userDefaults,
                    const PxOriginFile &theme);

    /** `name` is for example "spine[shown]"; `row` is that of the table with the value. */
    PxOriginElement find(const QString &name, int row) const;

private:
    void add(const char *name, const PxSourceElement *element);
    void addSpines(int pageCount);
    void addSurroundings(const PxShownProduct &shown);
    void addBarcodes(const QJsonArray &rows, int pageCount);
    void addContentRedirects(const QJsonArray &rows);
    void addRotationRedirects(const QJsonArray &rows);
    void addTemplates(const PxShownProduct &shown, const PxOriginFile &userDefaults);
    void addLogo(const PxProductType &type, const PxOriginFile &theme);

    const PxOriginFile &m_product;
    QMap<QString, QVector<PxOriginElement>> m_entries; // by name; one, or one for each row
};
