#pragma once

#include "report/PxReportValue.h"
#include "report/PxTextTable.h"
#include "writing/PxOutputText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/**
 * What a command answers: sections of single values and of tables, for people and as JSON.
 *
 * Both come from the same values. Empty texts, lists and tables are left out of the text; JSON
 * has them.
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
    };

    /** In JSON a member that is an object. */
    void addFields(const char *key, const char *heading, const QVector<Field> &fields);
    /** In JSON a member that is an array of objects. A row has one value for each column. */
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
