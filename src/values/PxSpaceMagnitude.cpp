#include "values/PxSpaceMagnitude.h"

#include <QCoreApplication>

template class PxEnumWrapper<PxSpaceMagnitudeEnum>;

namespace {

const PxLookUpTable<PxSpaceMagnitude, QString> *initNames()
{
    constexpr struct
    {
        PxSpaceMagnitudeEnum value;
        const char *text;
    } names[] = {
        {PxSpaceMagnitude150, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "Mini")},
        {PxSpaceMagnitude200, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "Klein")},
        {PxSpaceMagnitude280, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "Compact")},
        {PxSpaceMagnitude310, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "A5")},
        {PxSpaceMagnitude400, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "Quadratisch")},
        {PxSpaceMagnitude600, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "A4")},
        {PxSpaceMagnitude900, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "XL")},
        {PxSpaceMagnitude1200, QT_TRANSLATE_NOOP("PxSpaceMagnitude", "XXL")},
    };
    auto *table = new PxLookUpTable<PxSpaceMagnitude, QString>;
    table->insertTranslated("PxSpaceMagnitude", names);
    table->setDefaults(PxSpaceMagnitudeUnknown,
                       QCoreApplication::translate("PxSpaceMagnitude", "Undefiniert"));
    return table;
}

} // namespace

PxSpaceMagnitude::PxSpaceMagnitude(const QString &keywords)
{
    setValue(keywords);
}

PxSpaceMagnitude::PxSpaceMagnitude(const PxSpaceMagnitude &other) = default;
PxSpaceMagnitude &PxSpaceMagnitude::operator=(const PxSpaceMagnitude &other) = default;
PxSpaceMagnitude::~PxSpaceMagnitude() = default;

PxSpaceMagnitude PxSpaceMagnitude::createFromHumanReadable(const QString &name)
{
    return names()->findByValue(
        QCoreApplication::translate("PxSpaceMagnitude", name.toUtf8().constData()));
}

int PxSpaceMagnitude::maxReasonableImagesPerPage() const
{
    switch (value()) {
    case PxSpaceMagnitude200:
        return 4;
    case PxSpaceMagnitude280:
    case PxSpaceMagnitude310:
        return 5;
    case PxSpaceMagnitude400:
        return 6;
    case PxSpaceMagnitude600:
        return 8;
    case PxSpaceMagnitude900:
        return 12;
    case PxSpaceMagnitude1200:
        return 14;
    default:
        return 1;
    }
}

QString PxSpaceMagnitude::humanReadableName() const
{
    return names()->findByKey(value());
}

const PxLookUpTable<PxSpaceMagnitude, QString> *PxSpaceMagnitude::names()
{
    static const PxLookUpTable<PxSpaceMagnitude, QString> *const ourNames = initNames();
    return ourNames;
}

void PxSpaceMagnitude::fillTable(PxEnumToStringTable<PxSpaceMagnitudeEnum> *table) const
{
    table->insert(ourKeywords);
    table->setDefaultValue(PxSpaceMagnitudeAny);
    table->setDefaultString(QStringLiteral("any"));
}
