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
    /** Whether a value holds only for the page count with which a product is shown. */
    enum Validity { ForAnyPageCount, ForThisPageCount };

    struct Field
    {
        const char *key;
        const char *label;
        QJsonValue value;
        PxReportFormat format = PxReportFormat::Plain;
        Validity validity = ForAnyPageCount;
    };
    struct Column
    {
        const char *key;
        const char *label;
        PxReportFormat format = PxReportFormat::Plain;
        Validity validity = ForAnyPageCount;
        int givesWay = 0; ///< which columns are left out first where there is little room
    };

    static constexpr int formatVersion = 1; // raise it when JSON changes, except for new members
    static constexpr const char *lengthUnit = "tenths of a millimetre";

    /** Adds a section of single values; in JSON an object. */
    void addFields(const char *key, const char *heading, const QVector<Field> &fields);
    /** Adds a table; in JSON an array of objects. Each row has one value for each column. */
    void addTable(const char *key, const char *heading, const QVector<Column> &columns,
                  const QVector<QJsonArray> &rows);

    QJsonObject json() const;
    /** The sections alone, without what holds only for one page count. */
    QJsonObject jsonForAnyPageCount() const { return sections(ForAnyPageCount); }
    PxOutputText text(int width) const;

private:
    struct Section
    {
        const char *key;
        QString heading;
        QVector<Field> fields; // of a table none
        QVector<Column> columns;
        QVector<QJsonArray> rows;
    };

    static QJsonObject object(const Section &section, Validity most);
    static QJsonArray array(const Section &section, Validity most);
    static PxTextTable table(const Section &section);
    QJsonObject sections(Validity most) const;

    QVector<Section> m_sections;
};
