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
    static const QRegularExpression ourLengths(
        QStringLiteral("^(width|height|maxfontheight|\\w*margin\\w*|coverextra\\w*|\\w*clamp)$"));
    return row.type == PxValueType::RectanglePart ||
           ourLengths.match(QLatin1String(row.name)).hasMatch();
}

/** For somebody who wrote another kind of number. */
QString integerHint(const PxAttributeRow &row, const PxSourceAttribute &attribute)
{
    static const QRegularExpression ourHex(QStringLiteral("^0[xX][0-9a-fA-F]{1,7}$"));
    static const QRegularExpression ourMillimetres(
        QStringLiteral("^(-?[0-9]{1,6})(?:[.,]([0-9]))?\\s*(mm)?$"));
    const QString text = attribute.value.trimmed();
    if (text.isEmpty())
        return QStringLiteral("give a number, or leave \"%1\" out").arg(attribute.name);
    if (ourHex.match(text).hasMatch())
        return PxSpelling::didYouMean(QString::number(text.toInt(nullptr, 16)));
    const QRegularExpressionMatch millimetres = ourMillimetres.match(text);
    if (!isLength(row) || !millimetres.hasMatch())
        return QString();
    // Who writes a fraction thinks of millimetres.
    const QString tenth = millimetres.captured(2);
    return QStringLiteral("lengths are in tenths of a millimetre: \"%1\" for %2")
        .arg(millimetres.captured(1) + (tenth.isEmpty() ? QStringLiteral("0") : tenth),
             millimetres.captured(3).isEmpty() ? text + QLatin1String(" mm") : text);
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
                   PxMissingValue::text(element, row), integerHint(row, attribute));
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
