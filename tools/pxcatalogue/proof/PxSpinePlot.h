#pragma once

#include <QPair>
#include <QVector>

class PxHtml;

/** The width of the spine over all page counts: as a plot, and as a table with its numbers. */
class PxSpinePlot
{
public:
    /** Of page counts, ascending, and widths in the unit of the files. */
    explicit PxSpinePlot(const QVector<QPair<int, int>> &widths) : m_widths(widths) {}

    void addTo(PxHtml *html) const;

private:
    void addPlot(PxHtml *html) const;
    void addTable(PxHtml *html) const;

    QVector<QPair<int, int>> m_widths;
};
