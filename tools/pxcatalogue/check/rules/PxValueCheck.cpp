#include "check/rules/PxValueCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/rules/PxKeywordCheck.h"
#include "check/rules/PxMissingValue.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <QRegularExpression>

namespace {

bool isLength(const PxAttributeRow &row)
{
    return row.type == PxValueType::Length || row.type == PxValueType::RectanglePart;
}

/** For somebody who wrote another kind of number. */
QString integerHint(const PxAttributeRow &row, const PxSourceAttribute &attribute)
{
    static const QRegularExpression ourHex("^0[xX][0-9a-fA-F]{1,7}$");
    static const QRegularExpression ourMillimetres("^(-?[0-9]{1,6})(?:[.,]([0-9]))?\\s*(mm)?$");
    const QString text = attribute.value.trimmed();
    if (text.isEmpty())
        return QString("give a number, or leave \"%1\" out").arg(attribute.name);
    if (ourHex.match(text).hasMatch())
        return PxSpelling::didYouMean(QString::number(text.toInt(nullptr, 16)));
    const QRegularExpressionMatch millimetres = ourMillimetres.match(text);
    if (!isLength(row) || !millimetres.hasMatch())
        return QString();
    // Who writes a fraction thinks of millimetres.
    const QString tenth = millimetres.captured(2);
    return QString("lengths are in tenths of a millimetre: \"%1\" for %2")
        .arg(millimetres.captured(1) + (tenth.isEmpty() ? "0" : tenth),
             millimetres.captured(3).isEmpty() ? text + QLatin1String(" mm") : text);
}

/** Digits only: what is wrong is that there are too many. */
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
        PxKeywordCheck(m_element, m_row, m_attribute, m_report).run();
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
    QString message = QString("\"%1\" is no whole number").arg(PxMessageText::shortened(value));
    if (value.trimmed().isEmpty())
        message = QString("\"%1\" is empty").arg(m_attribute.name);
    else if (isTooLarge(value))
        message = QString("%1 is beyond the numbers of 32 bits")
                      .arg(PxMessageText::shortened(value.trimmed()));
    m_report.add(PxTag::IntegerMalformed, m_attribute.valueRange, message)
        .now([this] { return PxMissingValue::text(m_element, m_row); })
        .hint([this] { return integerHint(m_row, m_attribute); });
}

void PxValueCheck::checkBoolean() const
{
    if (PxElementReading::isReadable(m_element, m_attribute, m_row))
        return;
    const QString value = m_attribute.value;
    const QString meant = PxSpelling::hint(value, {"true", "false"});
    m_report
        .add(PxTag::BooleanMalformed, m_attribute.valueRange,
             value.trimmed().isEmpty()
                 ? QString("\"%1\" is empty").arg(m_attribute.name)
                 : QString("\"%1\" is neither true nor false").arg(PxMessageText::shortened(value)))
        .now([this] { return PxMissingValue::text(m_element, m_row); })
        .hint(meant.isEmpty() ? "write \"true\" or \"false\"" : meant);
}
