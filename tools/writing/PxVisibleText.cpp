#include "writing/PxVisibleText.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

/** Characters without a glyph whose category is neither control nor format. */
constexpr struct
{
    uint first;
    uint last;
} invisible[] = {
    {0x034F, 0x034F},   // grapheme joiner
    {0x115F, 0x1160},   // Hangul fillers
    {0x17B4, 0x17B5},   // inherent vowels of Khmer
    {0x180B, 0x180F},   // variation selectors
    {0x2800, 0x2800},   // blank Braille pattern
    {0x3164, 0x3164},   // Hangul filler
    {0xFE00, 0xFE0F},   // variation selectors
    {0xFFA0, 0xFFA0},   // Hangul filler
    {0xE0000, 0xE0FFF}, // tags and variation selectors
};

bool isVisible(uint character)
{
    if (character < 0x7F)
        return character >= 0x20;
    const bool isListed =
        std::any_of(std::begin(invisible), std::end(invisible), [character](const auto &range) {
            return range.first <= character && character <= range.last;
        });
    if (isListed)
        return false;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString escape(uint unit, int digits)
{
    return QString::number(unit, 16).toUpper().rightJustified(digits, '0');
}

QString escapedInText(uint character)
{
    return character > 0xFFFF ? "\\U" + escape(character, 8) : "\\u" + escape(character, 4);
}

QString escapedInJson(uint character)
{
    if (character <= 0xFFFF)
        return "\\u" + escape(character, 4);
    return "\\u" + escape(QChar::highSurrogate(character), 4) + "\\u" +
           escape(QChar::lowSurrogate(character), 4);
}

QString escapedInXml(uint character)
{
    return "&#x" + QString::number(character, 16).toUpper() + ';';
}

/** As nearly all texts are. */
bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar unit) { return unit >= QChar(' ') && unit < QChar(0x7F); });
}

/** Keeps line breaks if `hasLines`. */
QString escaped(const QString &text, bool hasLines, QString (*escapeOf)(uint))
{
    if (isPlain(text))
        return text;
    QString visible;
    int copied = 0; // how much of the text is already in `visible`
    for (int i = 0; i < text.size();) {
        const QChar unit = text[i];
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const bool isHalf = unit.isSurrogate() && !isPair;
        const uint character =
            isPair ? QChar::surrogateToUcs4(unit, text[i + 1]) : uint(unit.unicode());
        const int next = i + (isPair ? 2 : 1);
        if (!isVisible(character) && !(hasLines && unit == '\n')) {
            visible += text.midRef(copied, i - copied);
            visible += isHalf ? QString(QChar::ReplacementCharacter) : escapeOf(character);
            copied = next;
        }
        i = next;
    }
    return copied == 0 ? text : visible + text.midRef(copied);
}

} // namespace

QString PxVisibleText::line(const QString &text)
{
    return escaped(text, false, escapedInText);
}

QString PxVisibleText::inJson(const QString &text)
{
    return escaped(text, false, escapedInJson);
}

QString PxVisibleText::json(const QByteArray &json)
{
    // Apart from control characters, QJsonDocument escapes only unpaired surrogates.
    static const QRegularExpression ourHalf("(?<!\\\\)((?:\\\\\\\\)*)\\\\ud[89a-f][0-9a-f]{2}");
    QString text = QString::fromUtf8(json);
    if (json.contains("\\ud"))
        text.replace(ourHalf, QString("\\1") + QChar(QChar::ReplacementCharacter));
    return escaped(text, true, escapedInJson);
}

QString PxVisibleText::xml(const QString &xml)
{
    return escaped(xml, true, escapedInXml);
}
