#include "check/PxKeywordCheck.h"

#include "check/PxMissingValue.h"
#include "check/PxSpelling.h"
#include "vocabulary/PxVocabulary.h"

#include <PxListParts.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/** The words of a list that uses another separator than the comma. */
QStringList wordsOf(const QString &entry)
{
    static const QRegularExpression ourSeparators(QStringLiteral("[;|/+\\s]+"));
    return entry.split(ourSeparators, Qt::SkipEmptyParts);
}

} // namespace

PxKeywordCheck::PxKeywordCheck(const PxSourceElement &element, const PxAttributeRow &row,
                               const PxSourceAttribute &attribute)
    : m_element(element)
    , m_row(row)
    , m_attribute(attribute)
{
    pxForEachPart(attribute.value, [&](QStringView part) {
        const QString word = part.trimmed().toString();
        const int blanks = int(part.indexOf(word));
        m_entries.append({word, int(part.data() - attribute.value.data()) + blanks});
    });
}

void PxKeywordCheck::run(PxFileFindings &findings) const
{
    switch (m_row.keywords) {
    case PxKeywordSet::None:
    case PxKeywordSet::Material:     // any text is a material
    case PxKeywordSet::ProductGroup: // a matter of the whole theme
    case PxKeywordSet::ProductClass: // a matter of the whole row
        return;
    default:
        break;
    }
    if (m_attribute.value.trimmed().isEmpty())
        checkEmpty(findings);
    else if (m_row.type == PxValueType::OneKeyword)
        checkOneKeyword(findings);
    else
        checkList(findings);
}

QString PxKeywordCheck::shown(const QString &value)
{
    constexpr int maximum = 60;
    return value.size() <= maximum ? value : value.left(maximum) + QStringLiteral("…");
}

/** An empty value is the same as none, unless the library reads it as something else. */
void PxKeywordCheck::checkEmpty(PxFileFindings &findings) const
{
    const QString missing = QString::fromLatin1(m_row.defaultText);
    if (!m_row.defaultText || PxVocabulary::decode(m_row.keywords, m_attribute.value) ==
                                  PxVocabulary::decode(m_row.keywords, missing))
        return;
    findings.add(m_row.keywords == PxKeywordSet::Alignment ? "alignment-unknown"
                                                           : "keyword-unknown",
                 m_attribute.valueRange, QStringLiteral("\"%1\" is empty").arg(m_attribute.name),
                 now(), QStringLiteral("leave it out for \"%1\"").arg(missing));
}

void PxKeywordCheck::checkOneKeyword(PxFileFindings &findings) const
{
    const QString word = m_attribute.value.trimmed();
    if (isKnown(word))
        return;
    QStringList words;
    for (const QString &part : word.split(QLatin1Char(',')))
        words += wordsOf(part);
    const bool areKeywords =
        std::all_of(words.begin(), words.end(), [this](const QString &w) { return isKnown(w); });
    if (words.size() > 1 && areKeywords)
        findings.add("keyword-several", m_attribute.valueRange,
                     QStringLiteral("\"%1\" takes one keyword, not a list").arg(m_attribute.name),
                     now(), QStringLiteral("keep the one that is meant"));
    else
        checkUnknown({word, m_attribute.value.indexOf(word)}, now(), findings);
}

void PxKeywordCheck::checkList(PxFileFindings &findings) const
{
    bool areKnown = true;
    QString asRead;
    for (const Entry &entry : m_entries) {
        if (findings.isFull())
            return;
        if (entry.word.isEmpty() || isKnown(entry.word))
            continue;
        if (areKnown)
            asRead = now(); // once: lists may be long
        areKnown = false;
        checkUnknown(entry, asRead, findings);
    }
    // An author who mends a word looks at the whole list anyway.
    if (areKnown && !checkGap(findings) && !checkSeveral(findings))
        checkRepeated(findings);
}

void PxKeywordCheck::checkUnknown(const Entry &entry, const QString &asRead,
                                  PxFileFindings &findings) const
{
    const QString name = QString::fromUtf8(PxVocabulary::keywords(m_row.keywords).name);
    const QStringList words = wordsOf(entry.word);
    const auto known = std::count_if(words.begin(), words.end(),
                                     [this](const QString &word) { return isKnown(word); });
    // Blanks belong to some keywords, so that they separate only what leaves nothing open.
    static const QRegularExpression ourMarks(QStringLiteral("[;|/+]"));
    const bool isList =
        words.size() > 1 && (known == words.size() || (known > 0 && entry.word.contains(ourMarks)));
    if (isList && m_row.type != PxValueType::OneKeyword) {
        findings.add("keyword-list-separator", rangeOf(entry),
                     QStringLiteral("\"%1\" is one word, and no %2").arg(shown(entry.word), name),
                     asRead,
                     QStringLiteral("separate with commas: \"%1\"")
                         .arg(shown(words.join(QLatin1Char(',')))));
        return;
    }
    const bool isAlignment = m_row.keywords == PxKeywordSet::Alignment;
    findings.add(isAlignment ? "alignment-unknown" : "keyword-unknown", rangeOf(entry),
                 QStringLiteral("\"%1\" is no %2").arg(shown(entry.word), name), asRead,
                 PxSpelling::hint(entry.word, PxVocabulary::keywordNames(m_row.keywords)));
}

/** An entry without a word adds the default, which matters where the default is something. */
bool PxKeywordCheck::checkGap(PxFileFindings &findings) const
{
    const auto gap = std::find_if(m_entries.begin(), m_entries.end(),
                                  [](const Entry &entry) { return entry.word.isEmpty(); });
    if (gap == m_entries.end())
        return false;
    QStringList words;
    for (const Entry &entry : m_entries) {
        if (!entry.word.isEmpty())
            words.append(entry.word);
    }
    const int without = PxVocabulary::decode(m_row.keywords, words.join(QLatin1Char(',')));
    if (PxVocabulary::decode(m_row.keywords, m_attribute.value) == without && !words.isEmpty())
        return false;
    // The comma before it, or behind it when it is the first.
    const int comma = gap == m_entries.begin()
                          ? m_attribute.value.indexOf(QLatin1Char(','))
                          : m_attribute.value.lastIndexOf(QLatin1Char(','), gap->begin - 1);
    findings.add("keyword-list-gap", rangeOf({QStringLiteral(","), comma}),
                 QStringLiteral("an entry of \"%1\" is empty").arg(m_attribute.name),
                 QStringLiteral("it adds %1")
                     .arg(QString::fromUtf8(PxVocabulary::keywords(m_row.keywords).defaultText)),
                 QStringLiteral("take the comma out"));
    return true;
}

bool PxKeywordCheck::checkSeveral(PxFileFindings &findings) const
{
    if (m_row.type != PxValueType::Keyword)
        return false;
    QSet<int> values;
    for (const Entry &entry : m_entries) {
        if (!entry.word.isEmpty())
            values.insert(PxVocabulary::decode(m_row.keywords, entry.word));
    }
    if (values.size() < 2)
        return false;
    findings.add(
        "keyword-several", m_attribute.valueRange,
        QStringLiteral("a product has one %1, and \"%2\" names %3")
            .arg(QString::fromUtf8(PxVocabulary::keywords(m_row.keywords).name), m_attribute.name)
            .arg(values.size()),
        now(), QStringLiteral("keep the one that is meant"));
    return true;
}

void PxKeywordCheck::checkRepeated(PxFileFindings &findings) const
{
    QSet<QString> words;
    for (const Entry &entry : m_entries) {
        const QString word = entry.word.toLower();
        if (words.contains(word) && !word.isEmpty()) {
            findings.add("keyword-repeated", rangeOf(entry),
                         QStringLiteral("\"%1\" is in the list already").arg(shown(entry.word)),
                         QStringLiteral("it counts once"));
            return;
        }
        words.insert(word);
    }
}

bool PxKeywordCheck::isKnown(const QString &word) const
{
    return PxVocabulary::isKeyword(m_row.keywords, word);
}

PxSourceRange PxKeywordCheck::rangeOf(const Entry &entry) const
{
    const PxSourceRange &value = m_attribute.valueRange;
    if (value.end - value.begin != m_attribute.value.size())
        return value; // written with entities
    return {value.begin + entry.begin, value.begin + entry.begin + entry.word.size()};
}

QString PxKeywordCheck::now() const
{
    const QString answer = PxMissingValue::answer(m_element, m_row);
    return QStringLiteral("read as %1")
        .arg(answer.isEmpty() ? PxVocabulary::decoded(m_row.keywords, m_attribute.value) : answer);
}
