#include "drawing/PxTextWidth.h"

#include <QChar>

#include <algorithm>
#include <iterator>

namespace {

// Widths in hundredths of the font size: for each character the widest of the usual sans-serif
// fonts, rounded up.
// clang-format off
constexpr unsigned char ascii[] = { // U+0020 to U+007E
    32, 41, 46, 84, 64, 96, 78, 36, 40, 40, 50, 84, 32, 37, 32, 34, 64, 64, 64, 64, 64, 64, 64, 64,
    64, 64, 34, 34, 84, 84, 84, 56, 102, 69, 69, 72, 78, 67, 61, 78, 76, 30, 50, 67, 56, 87, 75, 79,
    67, 79, 72, 67, 62, 74, 69, 99, 69, 67, 69, 40, 34, 40, 84, 56, 50, 62, 64, 55, 64, 62, 36, 64,
    64, 28, 28, 58, 28, 98, 64, 62, 64, 64, 42, 53, 40, 64, 60, 82, 60, 60, 53, 64, 34, 64, 84};
constexpr unsigned char latin1[] = { // U+00A0 to U+00FF
    32, 41, 64, 64, 64, 64, 34, 56, 50, 100, 48, 62, 84, 37, 100, 56, 50, 84, 41, 41, 50, 64, 64, 33,
    50, 41, 48, 62, 97, 97, 97, 61, 69, 69, 69, 69, 69, 69, 100, 72, 67, 67, 67, 67, 30, 30, 30, 30,
    78, 75, 79, 79, 79, 79, 79, 84, 79, 74, 74, 74, 74, 67, 67, 63, 62, 62, 62, 62, 62, 62, 99, 55,
    62, 62, 62, 62, 28, 28, 28, 28, 62, 64, 62, 62, 62, 62, 62, 84, 62, 64, 64, 64, 64, 60, 64, 60};
// clang-format on
static_assert(std::size(ascii) == 0x7F - 0x20 && std::size(latin1) == 0x100 - 0xA0);

/** Further characters, by their last one. */
constexpr struct
{
    ushort last;
    unsigned char width;
} ranges[] = {
    {0x001F, 103}, {0x00FF, 103}, {0x024F, 145}, {0x02FF, 100}, {0x036F, 64}, // marks
    {0x052F, 142}, {0x1FFF, 150}, {0x2011, 100}, {0x2013, 60},                // dash
    {0x2017, 103}, {0x201F, 60},                                              // quotation marks
    {0x2025, 100}, {0x2026, 100}, {0x2211, 175}, {0x2212, 84},                // minus
    {0xFFFF, 175},
};

/** More than the widest ratio of a bold letter to its regular one. */
constexpr double boldRatio = 1.27;
const QChar ellipsis(0x2026);

int hundredths(QChar unit)
{
    const ushort code = unit.unicode();
    if (code >= 0x20 && code < 0x7F)
        return ascii[code - 0x20];
    if (code >= 0xA0 && code <= 0xFF)
        return latin1[code - 0xA0];
    if (unit.isSurrogate())
        return 100; // two of them are one character
    return std::lower_bound(std::begin(ranges), std::end(ranges), code,
                            [](const auto &range, ushort value) { return range.last < value; })
        ->width;
}

bool isOfNumber(QChar unit)
{
    return unit.isDigit() || unit == '.' || unit == ',' || unit == '-' || unit.unicode() == 0x2212;
}

/** Whether a line may end before this character, if need be: not within a number or a character. */
bool canBreakBefore(const QString &text, int index)
{
    const QChar before = text[index - 1];
    const QChar after = text[index];
    return !after.isLowSurrogate() && !after.isMark() && !(isOfNumber(before) && isOfNumber(after));
}

/** Whether the word that begins or ends here is a sign that stays with its neighbours: "×", "–". */
bool isSignAt(const QString &text, int index)
{
    const auto isBlank = [&](int i) { return i < 0 || i >= text.size() || text[i] == ' '; };
    return !isBlank(index) && !text[index].isLetterOrNumber() && isBlank(index - 1) &&
           isBlank(index + 1);
}

/** Whether a line may end after the blank before this character: "9,4 mm" stays in one piece. */
bool isWordBreakBefore(const QString &text, int index)
{
    return text[index - 1] == ' ' && text[index] != ' ' && !isSignAt(text, index) &&
           !isSignAt(text, index - 2) && text.midRef(index, 2) != QLatin1String("mm");
}

bool isPathBreakBefore(const QString &text, int index)
{
    const QChar before = text[index - 1];
    return (before == '/' || before == '_' || before == '-') && text[index].isLetter();
}

/** How many characters from `start` fit. */
int fitting(const QString &text, int start, double width, double fontSize, bool isBold)
{
    double used = 0;
    int end = start;
    for (; end < text.size(); ++end) {
        used += hundredths(text[end]) / 100.0 * fontSize * (isBold ? boldRatio : 1);
        if (used > width && !text[end].isSpace())
            break;
    }
    return end - start;
}

/** Where the line that begins at `start` ends, if no more than up to `limit` fits on it. */
int endOfLine(const QString &text, int start, int limit)
{
    const auto last = [&](bool (*isBreak)(const QString &, int), int from) {
        int end = limit;
        while (end > from && !isBreak(text, end))
            --end;
        return end > from ? end : -1;
    };
    // Names of files have no blanks: rather break them than leave most of the line empty.
    int end = last(isWordBreakBefore, start + (limit - start) / 2);
    if (end < 0)
        end = last(isPathBreakBefore, start + (limit - start) / 2);
    if (end < 0)
        end = last(isWordBreakBefore, start);
    if (end < 0)
        end = last(canBreakBefore, start);
    return end < 0 ? std::max(limit, start + 1) : end;
}

QString shortened(const QString &text, int start, double width, double fontSize, bool isBold)
{
    const double rest = width - PxTextWidth::of(ellipsis, fontSize, isBold);
    int end = start + fitting(text, start, rest, fontSize, isBold);
    while (end > start && end < text.size() && !canBreakBefore(text, end))
        --end;
    return text.mid(start, end - start).trimmed() + ellipsis;
}

} // namespace

double PxTextWidth::of(const QString &text, double fontSize, bool isBold)
{
    qint64 sum = 0;
    for (const QChar unit : text)
        sum += hundredths(unit);
    return double(sum) / 100 * fontSize * (isBold ? boldRatio : 1);
}

QStringList PxTextWidth::wrapped(const QString &text, double width, double fontSize, bool isBold,
                                 int maximumLines)
{
    QStringList lines;
    for (int start = 0; start < text.size();) {
        const int count = fitting(text, start, width, fontSize, isBold);
        if (start + count >= text.size()) {
            lines.append(text.mid(start).trimmed());
            break;
        }
        if (lines.size() + 1 == maximumLines) {
            lines.append(shortened(text, start, width, fontSize, isBold));
            break;
        }
        const int end = endOfLine(text, start, start + count);
        lines.append(text.mid(start, end - start).trimmed());
        start = end;
    }
    return lines;
}
