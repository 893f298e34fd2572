#include "output/PxSourceFrame.h"

#include "writing/PxTerminal.h"
#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

constexpr int tabWidth = 4;
constexpr int numberWidth = 5; // of a line
constexpr int leastWidth = 20; // of the text, however narrow the terminal is
constexpr const char *bar = " | ";
constexpr int barWidth = 3;

/** The characters of a line as they are printed. */
struct Cells
{
    explicit Cells(const QString &line)
    {
        for (const uint character : line.toUcs4())
            add(character);
    }

    int count() const { return columns.size() - 1; }
    int width(int begin, int end) const { return columns[end] - columns[begin]; }
    QString text(int begin, int end) const
    {
        return printed.mid(places[begin], places[end] - places[begin]);
    }

    QString printed;
    // Before each, and behind the last:
    QVector<int> places{0};  ///< in what is printed
    QVector<int> columns{0}; ///< where it stands

private:
    void add(uint character)
    {
        int width = 1;
        if (character >= ' ' && character < 0x7F) // as nearly all are
            printed += QChar(character);
        else
            width = addEscaped(character);
        places.append(printed.size());
        columns.append(columns.constLast() + width);
    }

    /** Returns its width. */
    int addEscaped(uint character)
    {
        if (character == '\t') {
            const int width = tabWidth - columns.constLast() % tabWidth;
            printed += QString(width, ' ');
            return width;
        }
        const QString text = QString::fromUcs4(&character, 1);
        const QString visible = PxVisibleText::line(text);
        printed += visible;
        return visible == text ? PxTerminal::width(character) : visible.size();
    }
};

} // namespace

PxSourceFrame::PxSourceFrame(const PxSourceLines::Piece &piece, const PxPlace &place, int width)
{
    const Cells cells(piece.text);
    const int placeBegin = qBound(0, place.column - piece.column, cells.count());
    const int placeEnd = place.endLine > place.line
                             ? cells.count()
                             : qBound(placeBegin, place.endColumn - piece.column, cells.count());
    const int fitting = qMax(width - numberWidth - barWidth, leastWidth);
    int begin = 0;
    int end = cells.count();
    if (cells.width(begin, end) > fitting) {
        // Some of what stands before the place tells where it is; more of it what is wrong there.
        while (cells.width(begin, placeBegin) > fitting / 3)
            ++begin;
        while (cells.width(begin, end) > fitting - 2) // the dots
            --end;
    }
    const QString dots(QChar(0x2026));
    const QString before = begin > 0 || piece.column > 1 ? dots : QString();
    const QString behind = end < cells.count() ? dots : QString();
    source = QString::number(place.line).rightJustified(numberWidth) + bar + before +
             cells.text(begin, end) + behind;
    const int marked = cells.width(placeBegin, qMin(placeEnd, end));
    beforeCaret = QString(numberWidth, ' ') + bar +
                  QString(before.size() + cells.width(begin, placeBegin), ' ');
    caret = '^' + QString(qMax(0, marked - 1), '~');
}
