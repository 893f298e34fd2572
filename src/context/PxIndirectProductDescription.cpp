#include "context/PxIndirectProductDescription.h"

#include "context/PxProductContext.h"

#include <PxXMLBuilder.h>

#include <QDebug>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

namespace {

template <typename SET, typename ENUM>
SET singleBits(ENUM flags)
{
    SET set;
    const QList<ENUM> bits = splitEnumType(flags);
    for (ENUM bit : bits)
        set.insert(bit);
    return set;
}

} // namespace

PxIndirectProductDescription::PxIndirectProductDescription(const PxProductContext &context)
{
    m_orientations.insert(context.orientation());
    m_templateTypes.insert(guessTemplateTarget(context));
}

PxIndirectProductDescription::PxIndirectProductDescription(const PxOrientation &orientation,
                                                           PxTemplateTarget target)
    : m_orientations(orientations(orientation))
    , m_templateTypes(templateTypes(target))
{}

PxIndirectProductDescription::PxIndirectProductDescription(
    const PxIndirectProductDescription &other) = default;
PxIndirectProductDescription &PxIndirectProductDescription::operator=(
    const PxIndirectProductDescription &other) = default;
PxIndirectProductDescription::~PxIndirectProductDescription() = default;

PxEmptyMeansAllSet<PxOrientation> PxIndirectProductDescription::orientations(
    const PxOrientation &orientation)
{
    return singleBits<PxEmptyMeansAllSet<PxOrientation>>(orientation.value());
}

PxEmptyMeansAllSet<PxTemplateTarget> PxIndirectProductDescription::templateTypes(
    const PxTemplateTarget &target)
{
    return singleBits<PxEmptyMeansAllSet<PxTemplateTarget>>(target);
}

PxTemplateTarget PxIndirectProductDescription::guessTemplateTarget(const PxProductContext &context)
{
    switch (context.productClass()) {
    case PxProductClassBook:
        return PxTemplateTargetFotoBook;
    case PxProductClassCalendar:
        return PxTemplateTargetCalendar;
    case PxProductClassGift:
    case PxProductClassCard:
    case PxProductClassDecoration:
        return PxTemplateTargetGift;
    default:
        return PxTemplateTargetUnknown;
    }
}

PxOrientation PxIndirectProductDescription::orientation() const
{
    if (m_orientations.isEmpty())
        return PxOrientationAll;
    PxOrientation all;
    for (const PxOrientation &orientation : m_orientations)
        all |= orientation;
    return all;
}

double PxIndirectProductDescription::defaultWidthHeightRatio() const
{
    switch (orientation().value()) {
    case PxOrientationPortrait:
        return 0.666666; // exactly this decimal, not two thirds
    case PxOrientationLandscape:
        return 1.5;
    default:
        return 1.0;
    }
}

bool PxIndirectProductDescription::matches(const PxIndirectProductDescription &other) const
{
    return m_orientations.sharesKeysWith(other.m_orientations) &&
           m_templateTypes.sharesKeysWith(other.m_templateTypes);
}

void PxIndirectProductDescription::toXml(QDomElement &parent) const
{
    if (!isValid())
        return;
    const PxOrientation all = orientation();
    if (all.isValid())
        PxXMLBuilder::buildDomElement(parent, QStringLiteral("orientation"), all.encodeCSV());
    QStringList keywords;
    for (PxTemplateTarget target : m_templateTypes.sorted())
        keywords.append(EnumHelper::encodeKeyword(target, EnumHelper::globalMapTemplateTargetString,
                                                  EnumHelper::globalTemplateTargetDefaultKey));
    PxXMLBuilder::buildDomElement(parent, QStringLiteral("type"), keywords.join(QLatin1Char(',')));
}

bool PxIndirectProductDescription::operator==(const PxIndirectProductDescription &other) const
{
    return m_orientations == other.m_orientations && m_templateTypes == other.m_templateTypes;
}

QDebug operator<<(QDebug debug, const PxIndirectProductDescription &description)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxIndirectProductDescription(" << description.orientation()
                           << ", targets " << description.templateTypes() << ')';
}
