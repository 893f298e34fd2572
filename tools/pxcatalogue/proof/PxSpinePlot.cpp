#include "proof/PxSpinePlot.h"

#include "proof/PxProofWords.h"
#include "writing/PxHtml.h"

#include <QPointF>
#include <QRectF>

#include <algorithm>

namespace {

const QRectF frame(72, 16, 504, 200); // of the curve, in the unit of the plot
constexpr const char *box = "0 0 600 260";

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

QString millimetres(int width)
{
    return PxProofWords::value(width, PxReportFormat::Length);
}

void addText(const QPointF &place, const QString &text, const char *anchor, PxHtml *html)
{
    html->element("text", text,
                  {{"x", number(place.x())}, {"y", number(place.y())}, {"text-anchor", anchor}});
}

} // namespace

void PxSpinePlot::addTo(PxHtml *html) const
{
    if (m_widths.size() > 1)
        addPlot(html);
    addTable(html);
}

void PxSpinePlot::addPlot(PxHtml *html) const
{
    const auto byWidth = [](const auto &a, const auto &b) { return a.second < b.second; };
    const double widest =
        std::max(1, std::max_element(m_widths.begin(), m_widths.end(), byWidth)->second);
    const double first = m_widths.constFirst().first;
    const double span = std::max(1.0, m_widths.constLast().first - first);
    const auto pointOf = [&](const QPair<int, int> &width) {
        return QPointF(frame.left() + (width.first - first) / span * frame.width(),
                       frame.bottom() - width.second / widest * frame.height());
    };
    html->open("svg", {{"class", "plot"},
                       {"viewBox", box},
                       {"role", "img"},
                       {"aria-label", PxProofWords::tr("Breite des Rückens nach Seitenzahl")}});
    QString points;
    for (const auto &width : m_widths) {
        const QPointF point = pointOf(width);
        points += number(point.x()) + ',' + number(point.y()) + ' ';
    }
    html->element("path", QString(),
                  {{"class", "axis"},
                   {"fill", "none"},
                   {"d", QString("M%1 %2V%3H%4")
                             .arg(number(frame.left()), number(frame.top()), number(frame.bottom()),
                                  number(frame.right()))}});
    html->element("polyline", QString(), {{"class", "curve"}, {"points", points.trimmed()}});
    addText(frame.topLeft() + QPointF(-6, 4), millimetres(int(widest)) + " mm", "end", html);
    addText(frame.bottomLeft() + QPointF(-6, 4), "0", "end", html);
    addText(frame.bottomLeft() + QPointF(0, 20), QString::number(m_widths.constFirst().first),
            "start", html);
    addText(frame.bottomRight() + QPointF(0, 20), QString::number(m_widths.constLast().first),
            "end", html);
    addText({frame.center().x(), frame.bottom() + 36}, PxProofWords::tr("Seiten"), "middle", html);
    html->close();
}

void PxSpinePlot::addTable(PxHtml *html) const
{
    html->open("details");
    html->element("summary", PxProofWords::tr("Breite des Rückens nach Seitenzahl"));
    html->open("table");
    html->open("thead");
    html->open("tr");
    html->element("th", PxProofWords::tr("Seiten"), {{"scope", "col"}, {"class", "number"}});
    html->element("th", PxProofWords::tr("Breite mm"), {{"scope", "col"}, {"class", "number"}});
    html->close();
    html->close();
    html->open("tbody");
    for (const auto &[pages, width] : m_widths) {
        html->open("tr");
        html->element("td", QString::number(pages), {{"class", "number"}});
        html->element("td", millimetres(width), {{"class", "number"}});
        html->close();
    }
    html->close();
    html->close();
    html->close();
}
