#pragma once

#include "report/PxReportValue.h"
#include "report/PxTextTable.h"
#include "writing/PxOutputText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class PxJsonLine;

/**
 * The report of a command: sections with single values or a table, printed as text or as JSON.
 *
 * Both have the same values. Empty texts, lists and tables appear only in JSON.
 */
class PxReport
{
public:
    /**
     * What holds only today, or for the page count with which a product is shown, is not exported;
     * nor is the file in which a product was found.
     */
    enum Use { Exported, ShownOnly };

    struct Field
    {
        const char *key;
        const char *label;
        QJsonValue value;
        PxReportFormat format = PxReportFormat::Plain;
        Use use = Exported;
    };
    struct Column
    {
        const char *key;
        const char *label;
        PxReportFormat format = PxReportFormat::Plain;
        Use use = Exported;
        int givesWay = 0; ///< which columns are left out first where there is little room
    };

    static constexpr int formatVersion = 1; // raise it when JSON changes, except for new members
    static constexpr const char *lengthUnit = "tenths of a millimetre";

    /** Adds a section of single values; in JSON an object. */
    void addFields(const char *key, const char *heading, const QVector<Field> &fields);
    /** Adds a table; in JSON an array of objects. Each row has one value for each column. */
    void addTable(const char *key, const char *heading, const QVector<Column> &columns,
                  const QVector<QJsonArray> &rows);

    // Changes of sections that were added before; a row counts in a table only
    void addField(const char *section, const Field &field);
    /** The column has a value for each row. */
    void addColumn(const char *section, const Column &column, const QVector<QJsonValue> &values);
    void setValue(const char *section, const char *key, const QJsonValue &value, int row = 0);

    /**
     * Says where each value comes from: as the member "origins", and in a column of the text or
     * below a table. `originAt` returns the text for a JSON pointer.
     */
    void setOrigins(const QJsonObject &origins,
                    const std::function<QString(const QString &pointer)> &originAt);

    struct Section
    {
        const char *key;
        QString heading;
        QVector<Field> fields; ///< of a table none
        QVector<Column> columns;
        QVector<QJsonArray> rows;
    };
    const QVector<Section> &sections() const { return m_sections; }
    /** Null if there is none with this key. */
    const Section *find(const QString &key) const;
    /** The values of a column of a table that was added, for each row. */
    QVector<QJsonValue> column(const char *section, const char *key) const;
    /** Whether json() has a value at this pointer, if only null; origins left out. */
    bool has(const QString &pointer) const;
    bool hasOrigins() const { return bool(m_originAt); }
    /** Where the value of a field comes from; empty without origins. */
    QString origin(const Section &section, const Field &field) const;
    /** The same for each row of a column. */
    QStringList origins(const Section &section, const Column &column) const;

    /** Where several values of a column come from. */
    struct RowsOrigin
    {
        QString rows; ///< their numbers, beginning at 1; empty for all
        QString origin;
    };
    static QVector<RowsOrigin> grouped(const QStringList &originsOfRows);

    QJsonObject json() const;
    /** Adds the sections with all that is exported. */
    void addTo(PxJsonLine *line) const;
    PxOutputText text(int width) const;

private:
    static QJsonValue jsonOf(const Section &section);
    static PxTextTable table(const Section &section);
    QStringList linesWithOrigins(const Section &section, int width) const;
    Section &section(const char *key);

    QVector<Section> m_sections;
    QJsonObject m_origins;
    std::function<QString(const QString &pointer)> m_originAt; // null without origins
};
