#include "check/PxValueCheck.h"

#include "check/PxElementReading.h"
#include "check/PxKeywordCheck.h"
#include "check/PxMessageText.h"
#include "check/PxMissingValue.h"
#include "check/PxSpelling.h"

#include <QRegularExpression>

namespace {

/** The whole number that somebody meant who wrote another kind of number; empty when none. */
QString meantNumber(const QString &text)
{
    static const QRegularExpression ourHex(QStringLiteral("^0[xX][0-9a-fA-F]{1,7}$"));
    static const QRegularExpression ourMillimetres(QStringLiteral("^(-?[0-9]{1,6})\\s*mm$"));
    // Three digits behind the point may be thousands.
    static const QRegularExpression ourFraction(QStringLiteral("^(-?[0-9]{1,6})[.,]([0-9]{1,2})$"));
    if (ourHex.match(text).hasMatch())
        return QString::number(text.toInt(nullptr, 16));
    const QRegularExpressionMatch millimetres = ourMillimetres.match(text);
    if (millimetres.hasMatch())
        return QString::number(millimetres.captured(1).toInt() * 10);
    const QRegularExpressionMatch fraction = ourFraction.match(text);
    if (fraction.hasMatch())
        return QString::number(
            qRound((fraction.captured(1) + QLatin1Char('.') + fraction.captured(2)).toDouble()));
    return QString();
}

QString integerHint(const PxSourceAttribute &attribute)
{
    const QString text = attribute.value.trimmed();
    if (text.isEmpty())
        return QStringLiteral("give a number, or leave \"%1\" out").arg(attribute.name);
    const QString number = meantNumber(text);
    if (number.isEmpty())
        return QString();
    return text.endsWith(QLatin1String("mm"))
               ? QStringLiteral("lengths are in tenths of a millimetre: \"%1\"").arg(number)
               : QStringLiteral("did you mean \"%1\"?").arg(number);
}

/** Digits only: what is wrong is that there are too many. */
bool isTooLarge(const QString &text)
{
    static const QRegularExpression ourDigits(QStringLiteral("^\\s*[+-]?[0-9]+\\s*$"));
    return ourDigits.match(text).hasMatch();
}

} // namespace

void PxValueCheck::check(const PxSourceElement &element, const PxAttributeRow &row,
                         const PxSourceAttribute &attribute) const
{
    if (element.dom.isNull())
        return;
    switch (row.type) {
    case PxValueType::Integer:
    case PxValueType::RectanglePart:
        checkInteger(element, row, attribute);
        break;
    case PxValueType::Boolean:
        checkBoolean(element, row, attribute);
        break;
    case PxValueType::Keyword:
    case PxValueType::KeywordList:
    case PxValueType::OneKeyword:
        PxKeywordCheck(m_findings.file(), element, row, attribute).run(m_findings);
        break;
    default:
        break; // any text can be read
    }
}

void PxValueCheck::checkInteger(const PxSourceElement &element, const PxAttributeRow &row,
                                const PxSourceAttribute &attribute) const
{
    if (PxElementReading::isReadable(element, attribute, row))
        return;
    QString message =
        QStringLiteral("\"%1\" is no whole number").arg(PxMessageText::shortened(attribute.value));
    if (attribute.value.trimmed().isEmpty())
        message = QStringLiteral("\"%1\" is empty").arg(attribute.name);
    else if (isTooLarge(attribute.value))
        message = QStringLiteral("%1 is beyond the numbers of 32 bits")
                      .arg(PxMessageText::shortened(attribute.value.trimmed()));
    m_findings.add("integer-malformed", attribute.valueRange, message,
                   PxMissingValue::text(element, row), integerHint(attribute));
}

void PxValueCheck::checkBoolean(const PxSourceElement &element, const PxAttributeRow &row,
                                const PxSourceAttribute &attribute) const
{
    if (PxElementReading::isReadable(element, attribute, row))
        return;
    const QString meant =
        PxSpelling::hint(attribute.value, {QStringLiteral("true"), QStringLiteral("false")});
    m_findings.add("boolean-malformed", attribute.valueRange,
                   attribute.value.trimmed().isEmpty()
                       ? QStringLiteral("\"%1\" is empty").arg(attribute.name)
                       : QStringLiteral("\"%1\" is neither true nor false")
                             .arg(PxMessageText::shortened(attribute.value)),
                   PxMissingValue::text(element, row),
                   meant.isEmpty() ? QStringLiteral("write \"true\" or \"false\"") : meant);
}
