#include "values/PxPaperType.h"

#include <QCoreApplication>

template class PxEnumWrapper<PxPaperTypeEnum>;

namespace {

const PxLookUpTable<PxPaperType, QString> *initPaperTypeNames()
{
    constexpr struct
    {
        PxPaperTypeEnum value;
        const char *text;
    } names[] = {
        {PxPaperTypeIndigo, QT_TRANSLATE_NOOP("PxPaperType", "Digitaldruck")},
        {PxPaperTypeGlossy,
         QT_TRANSLATE_NOOP("PxPaperType", "Digitaldruck mit Hochglanz-Veredelung")},
        {PxPaperTypeIndigoMatt, QT_TRANSLATE_NOOP("PxPaperType", "Digitaldruck Premium-Matt")},
        {PxPaperTypeFotoPaper, QT_TRANSLATE_NOOP("PxPaperType", "Fotopapier matt")},
        {PxPaperTypeFotoPaperGlossy, QT_TRANSLATE_NOOP("PxPaperType", "Fotopapier glänzend")},
    };
    auto *table = new PxLookUpTable<PxPaperType, QString>;
    table->insertTranslated("PxPaperType", names);
    table->setDefaults(PxPaperTypeIndigo,
                       QCoreApplication::translate("PxPaperType", "unbekannter Papiertyp"));
    return table;
}

} // namespace

PxPaperType::PxPaperType(const QString &keywords)
{
    setValue(keywords);
}

PxPaperType::PxPaperType(const PxPaperType &other) = default;
PxPaperType &PxPaperType::operator=(const PxPaperType &other) = default;
PxPaperType::~PxPaperType() = default;

PxPaperType PxPaperType::createFromHumanReadable(const QString &name)
{
    return paperTypeNames()->findByValue(
        QCoreApplication::translate("PxPaperType", name.toUtf8().constData()));
}

QString PxPaperType::humanReadableName() const
{
    return paperTypeNames()->findByKey(value());
}

const PxLookUpTable<PxPaperType, QString> *PxPaperType::paperTypeNames()
{
    static const PxLookUpTable<PxPaperType, QString> *const ourNames = initPaperTypeNames();
    return ourNames;
}

void PxPaperType::fillTable(PxEnumToStringTable<PxPaperTypeEnum> *table) const
{
    table->insert(ourKeywords);
    table->setDefaultValue(PxPaperTypeIndigo);
    table->setDefaultString(QStringLiteral("indigo"));
}
