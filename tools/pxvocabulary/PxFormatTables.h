#pragma once

#include <QStringList>

/**
 * The documentation of the file format, with its tables regenerated.
 *
 * A table stands between the lines "<!-- table: NAME -->" and "<!-- end of table -->". The names of
 * the tables and their headings are defined here; the rest comes from the rows of the format.
 */
class PxFormatTables
{
public:
    explicit PxFormatTables(const QString &document);

    /** The document with every table replaced and everything else unchanged. */
    QString document() const { return m_lines.join(QLatin1Char('\n')); }
    /** Markers without a partner, unknown tables, and tables that are missing or appear twice. */
    QStringList problems() const { return m_problems; }

private:
    QStringList m_lines;
    QStringList m_problems;
};
