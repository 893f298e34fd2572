#pragma once

#include "report/PxReportValue.h"
#include "report/PxTextTable.h"
#include "writing/PxOutputText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/**
 * The report of a command: sections with single values or a table, printed as text or as JSON.
 *
 * Both have the same values. Empty texts, lists and tables appear only in JSON.
 */
class PxReport
{
public:
    struct Field
    {
        const char *key;
        const char *label;
        QJsonValue value;
        PxReportFormat format = PxReportFormat::Plain;
    };
    struct Column
    {
        const char *key;
        const char *label;
        PxReportFormat format = PxReportFormat::Plain;
        int givesWay = 0; ///< which columns are left out first where there is little room
    };

    /** Adds a section of single values; in JSON an object. */
    void addFields(const char *key, const char *heading, const QVector<Field> &fields);
    /** Adds a table; in JSON an array of objects. Each row has one value for each column. */
    void addTable(const char *key, const char *heading, const QVector<Column> &columns,
                  const QVector<QJsonArray> &rows);

    QJsonObject json() const;
    PxOutputText text(int width) const;

private:
    struct Section
    {
        QString heading;
        PxTextTable table;
    };

    QJsonObject m_json;
    QVector<Section> m_sections;
};
