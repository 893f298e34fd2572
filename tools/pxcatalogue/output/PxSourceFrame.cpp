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

    int count() const { return texts.size(); }
    int width(int begin, int end) const { return columns[end] - columns[begin]; }
    QString text(int begin, int end) const { return texts.mid(begin, end - begin).join(QString()); }

    QStringList texts;
    QVector<int> columns{0}; // before each, and behind the last

private:
    void add(uint character)
    {
        if (character >= ' ' && character < 0x7F) { // as nearly all are
            texts.append(QChar(character));
            columns.append(columns.constLast() + 1);
            return;
        }
        const QString text = QString::fromUcs4(&character, 1);
        QString visible = PxVisibleText::line(text);
        int width = visible == text ? PxTerminal::width(character) : visible.size();
        if (character == '\t') {
            width = tabWidth - columns.constLast() % tabWidth;
            visible = QString(width, ' ');
        }
        texts.append(visible);
        columns.append(columns.constLast() + width);
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
