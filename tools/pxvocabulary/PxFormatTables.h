#pragma once

#include <QStringList>

/**
 * The documentation of the file format, with the tables of the vocabulary in it.
 *
 * A table stands between the lines "<!-- table: NAME -->" and "<!-- end of table -->". Its name and
 * its headings are known here, all else is from the vocabulary.
 */
class PxFormatTables
{
public:
    explicit PxFormatTables(const QString &document);

    /** With every table replaced, and all else as it was. */
    QString document() const { return m_lines.join(QLatin1Char('\n')); }
    /** Markers that do not fit, and tables that do not stand in the document exactly once. */
    QStringList problems() const { return m_problems; }

private:
    QStringList m_lines;
    QStringList m_problems;
};
