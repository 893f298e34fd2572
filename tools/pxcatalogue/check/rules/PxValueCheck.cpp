#include "check/rules/PxValueCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/rules/PxMissingValue.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <PxListParts.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

bool isLength(const PxAttributeRow &row)
{
    return row.type == PxValueType::Length || row.type == PxValueType::RectanglePart;
}

/** The digits of a number with letters or digits that look like them, or blanks for thousands. */
QString digitsOf(const QString &text)
{
    static const QRegularExpression ourGroups("^[0-9]{1,3}(?:[\\p{Z}'][0-9]{3})+$");
    const bool hasGroups = ourGroups.match(text).hasMatch();
    QString digits;
    for (const QChar character : text) {
        const bool isZero = character == QLatin1Char('O') || character == QLatin1Char('o');
        const bool isOne = character == QLatin1Char('l') || character == QLatin1Char('I');
        if (character.digitValue() >= 0)
            digits += QString::number(character.digitValue());
        else if (isZero || isOne)
            digits += QLatin1Char(isZero ? '0' : '1');
        else if (!hasGroups)
            return QString();
    }
    const bool isAnyDigit =
        std::any_of(text.begin(), text.end(), [](QChar character) { return character.isDigit(); });
    constexpr int maximum = 9; // more may leave 32 bits
    return isAnyDigit && digits.size() <= maximum ? digits : QString();
}

/** A hint for another kind of number. */
QString integerHint(const PxAttributeRow &row, const PxSourceAttribute &attribute)
{
    static const QRegularExpression ourHex("^0[xX][0-9a-fA-F]{1,7}$");
    static const QRegularExpression ourMillimetres("^(-?[0-9]{1,6})(?:[.,]([0-9])0*)?\\s*(mm)?$");
    static const QRegularExpression ourThousands("^-?[1-9][0-9]{0,2}[.,][0-9]{3}$");
    const QString text = attribute.value.trimmed();
    if (text.isEmpty())
        return QString("give a number, or leave \"%1\" out").arg(attribute.name);
    if (ourHex.match(text).hasMatch())
        return PxSpelling::didYouMean(QString::number(text.toInt(nullptr, 16)));
    const QString digits = digitsOf(text);
    if (!digits.isEmpty())
        return PxSpelling::didYouMean(digits);
    const QRegularExpressionMatch millimetres = ourMillimetres.match(text);
    const QString whole = millimetres.captured(1);
    const QString tenth = millimetres.captured(2);
    const bool isWhole = tenth == QLatin1String("0") && millimetres.captured(3).isEmpty();
    if (isWhole && !isLength(row))
        return PxSpelling::didYouMean(whole);
    if (!isLength(row) || !millimetres.hasMatch())
        return QString();
    if (ourThousands.match(text).hasMatch())
        return QString("\"%1\" if thousands are separated; for %2 mm write \"%3\"")
            .arg(QString(text).remove(QRegularExpression("[.,]")), text,
                 QString::number(qRound(
                     QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble() * 10)));
    if (isWhole)
        return QString("write a whole number of tenths of a millimetre: \"%1\" for %2 mm, or "
                       "\"%3\" for %1 mm?")
            .arg(whole, QString::number(whole.toInt() / 10.0), whole + QLatin1Char('0'));
    // Any other fraction is one of millimetres.
    return QString("lengths are in tenths of a millimetre: \"%1\" for %2")
        .arg(whole + (tenth.isEmpty() ? "0" : tenth),
             millimetres.captured(3).isEmpty() ? text + QLatin1String(" mm") : text);
}

/** Only digits, but too many. */
bool isTooLarge(const QString &text)
{
    static const QRegularExpression ourDigits("^\\s*[+-]?[0-9]+\\s*$");
    return ourDigits.match(text).hasMatch();
}

} // namespace

void PxValueCheck::run()
{
    switch (m_row.type) {
    case PxValueType::Integer:
    case PxValueType::Length:
    case PxValueType::RectanglePart:
        checkInteger();
        break;
    case PxValueType::Boolean:
        checkBoolean();
        break;
    case PxValueType::Keyword:
    case PxValueType::KeywordList:
    case PxValueType::OneKeyword:
        checkKeywords();
        break;
    default:
        break; // any text can be read
    }
}

void PxValueCheck::checkInteger() const
{
    if (PxElementReading::isReadable(m_element, m_attribute, m_row))
        return;
    const QString value = m_attribute.value;
    const bool isNumber = isTooLarge(value);
    m_report
        .add(PxTag::IntegerMalformed, m_attribute.valueRange,
             value.trimmed().isEmpty() ? "\"%1\" is empty"
             : isNumber                ? "%2 is beyond the numbers of 32 bits"
                                       : "\"%2\" is no whole number",
             m_attribute.name, PxMessageText::shortened(isNumber ? value.trimmed() : value))
        .now([this] { return PxMissingValue::text(m_element, m_row); })
        .hint([this] { return integerHint(m_row, m_attribute); });
}

void PxValueCheck::checkBoolean() const
{
    if (PxElementReading::isReadable(m_element, m_attribute, m_row))
        return;
    const QString value = m_attribute.value;
    const QString meant = PxSpelling::hint(value, {"true", "false"});
    const QString tidy = value.trimmed().toLower();
    m_report
        .add(PxTag::BooleanMalformed, m_attribute.valueRange,
             value.trimmed().isEmpty() ? "\"%1\" is empty" : "\"%2\" is neither true nor false",
             m_attribute.name, PxMessageText::shortened(value))
        .now([this] { return PxMissingValue::text(m_element, m_row); })
        .hint(meant.isEmpty() ? "write \"true\" or \"false\"" : meant)
        .replacement(QStringList{"true", "false"}.contains(tidy) ? tidy : QString());
}

void PxValueCheck::checkKeywords()
{
    switch (m_row.keywords) {
    case PxKeywordSet::None:
    case PxKeywordSet::Material:     // any text is a material
    case PxKeywordSet::ProductGroup: // reported for the whole theme
    case PxKeywordSet::ProductClass: // reported for the whole row
        return;
    default:
        break;
    }
    m_list = PxSourceParts::ofAttribute(m_report.file(), &m_attribute);
    for (PxSourcePart &entry : m_list.parts)
        entry.text = entry.text.trimmed();
    if (m_attribute.value.trimmed().isEmpty())
        checkEmptyKeyword();
    else if (m_row.type == PxValueType::OneKeyword)
        checkOneKeyword();
    else
        checkKeywordList();
}

/** An empty value is the same as none, unless the library reads it as something else. */
void PxValueCheck::checkEmptyKeyword() const
{
    const QString missing = QString::fromLatin1(m_row.defaultText);
    if (!m_row.defaultText || PxFormat::decode(m_row.keywords, m_attribute.value) ==
                                  PxFormat::decode(m_row.keywords, missing))
        return;
    m_report
        .add(m_row.keywords == PxKeywordSet::Alignment ? PxTag::AlignmentUnknown
                                                       : PxTag::KeywordUnknown,
             m_attribute.valueRange, QString("\"%1\" is empty").arg(m_attribute.name))
        .now(now())
        .hint("leave it out for \"%1\"", missing);
}

void PxValueCheck::checkOneKeyword() const
{
    const QString word = m_attribute.value.trimmed();
    if (isKnown(word))
        return;
    const QStringList words =
        PxSpelling::words(QString(word).replace(QLatin1Char(','), QLatin1Char(' ')));
    const bool areKeywords =
        std::all_of(words.begin(), words.end(), [this](const QString &w) { return isKnown(w); });
    if (words.size() > 1 && areKeywords)
        m_report
            .add(PxTag::KeywordSeveral, m_attribute.valueRange,
                 "\"%1\" takes one keyword, not a list", m_attribute.name)
            .now(now())
            .hint("keep the one that is meant");
    else
        checkUnknownKeyword(
            {word,
             {m_list.parts.constFirst().range.begin, m_list.parts.constLast().range.end},
             m_attribute.valueRange},
            now());
}

void PxValueCheck::checkKeywordList() const
{
    bool areKnown = true;
    QString asRead;
    for (const PxSourcePart &entry : m_list.parts) {
        if (entry.text.isEmpty() || isKnown(entry.text))
            continue;
        if (areKnown)
            asRead = now(); // once: lists may be long
        areKnown = false;
        checkUnknownKeyword(entry, asRead);
    }
    // One who repairs a word sees the rest of the list, too.
    if (areKnown && m_list.isWhole() && !checkGap() && !checkSeveral())
        checkRepeated();
}

void PxValueCheck::checkUnknownKeyword(const PxSourcePart &entry, const QString &asRead) const
{
    const QString name = QString::fromUtf8(PxFormat::keywords(m_row.keywords).name);
    const QStringList words = PxSpelling::words(entry.text);
    const auto known = std::count_if(words.begin(), words.end(),
                                     [this](const QString &word) { return isKnown(word); });
    // Some keywords contain blanks, so a blank separates only if all words are keywords.
    static const QRegularExpression ourMarks("[;|/+]");
    const bool isList =
        words.size() > 1 && (known == words.size() || (known > 0 && entry.text.contains(ourMarks)));
    if (isList && m_row.type != PxValueType::OneKeyword) {
        m_report
            .add(PxTag::KeywordListSeparator, entry.range, "\"%1\" is one word, and no %2",
                 PxMessageText::shortened(entry.text), name)
            .now(asRead)
            .hint(m_row.type == PxValueType::Keyword
                      ? "keep the one that is meant"
                      : QString("separate with commas: \"%1\"")
                            .arg(PxMessageText::shortened(words.join(QLatin1Char(',')))))
            .replacement(m_row.type != PxValueType::Keyword && known == words.size()
                             ? words.join(QLatin1Char(','))
                             : QString());
        return;
    }
    const PxTag tag =
        m_row.keywords == PxKeywordSet::Alignment ? PxTag::AlignmentUnknown : PxTag::KeywordUnknown;
    m_report.add(tag, entry.range, "\"%1\" is no %2", PxMessageText::shortened(entry.text), name)
        .now(asRead)
        .hint([&] {
            const QString near =
                PxSpelling::hint(entry.text, PxFormat::keywordNames(m_row.keywords));
            return near.isEmpty() ? PxSpelling::oneOf(PxFormat::mainKeywordNames(m_row.keywords))
                                  : near;
        });
}

/** An empty entry adds the default, which does harm if the default is not nothing. */
bool PxValueCheck::checkGap() const
{
    const auto gap = std::find_if(m_list.parts.begin(), m_list.parts.end(),
                                  [](const PxSourcePart &entry) { return entry.text.isEmpty(); });
    if (gap == m_list.parts.end())
        return false;
    QStringList words;
    for (const PxSourcePart &entry : m_list.parts) {
        if (!entry.text.isEmpty())
            words.append(entry.text);
    }
    const int without = PxFormat::decode(m_row.keywords, words.join(QLatin1Char(',')));
    const int all = PxFormat::decode(m_row.keywords, m_attribute.value);
    // Commas alone are read like a missing value if both mean nothing.
    const bool isMissing =
        words.isEmpty() && all == 0 && m_row.defaultText &&
        PxFormat::decode(m_row.keywords, QString::fromLatin1(m_row.defaultText)) == 0;
    if (words.isEmpty() ? isMissing : all == without)
        return false;
    // The comma before the empty entry, or behind it if it is the first.
    const int comma = gap == m_list.parts.begin() ? gap->whole.end : gap->whole.begin - 1;
    m_report
        .add(PxTag::KeywordListGap, {comma, comma + 1}, "an entry of \"%1\" is empty",
             m_attribute.name)
        .now("it adds %1", QString::fromUtf8(PxFormat::keywords(m_row.keywords).defaultText))
        .hint("take the comma out")
        .replacement("");
    return true;
}

bool PxValueCheck::checkSeveral() const
{
    if (m_row.type != PxValueType::Keyword)
        return false;
    QSet<int> values;
    for (const PxSourcePart &entry : m_list.parts) {
        if (!entry.text.isEmpty())
            values.insert(PxFormat::decode(m_row.keywords, entry.text));
    }
    if (values.size() < 2)
        return false;
    m_report
        .add(PxTag::KeywordSeveral, m_attribute.valueRange,
             "a product has one %1, and \"%2\" names %3",
             QString::fromUtf8(PxFormat::keywords(m_row.keywords).name), m_attribute.name,
             values.size())
        .now(now())
        .hint("keep the one that is meant");
    return true;
}

void PxValueCheck::checkRepeated() const
{
    QSet<QString> words;
    for (const PxSourcePart &entry : m_list.parts) {
        const QString word = entry.text.toLower();
        if (words.contains(word) && !word.isEmpty()) {
            m_report
                .add(PxTag::KeywordRepeated, entry.range, "\"%1\" is in the list already",
                     PxMessageText::shortened(entry.text))
                .now("it counts once");
            return;
        }
        words.insert(word);
    }
}

bool PxValueCheck::isKnown(const QString &word) const
{
    return PxFormat::isKeyword(m_row.keywords, word);
}

QString PxValueCheck::now() const
{
    const QString answer = PxMissingValue::answer(m_element, m_row);
    return QString("read as %1")
        .arg(answer.isEmpty() ? PxFormat::decoded(m_row.keywords, m_attribute.value) : answer);
}
