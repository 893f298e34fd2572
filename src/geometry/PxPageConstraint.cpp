#include "geometry/PxPageConstraint.h"

#include <PxXMLBuilder.h>

#include <QDebug>
#include <QDomElement>
#include <QList>
#include <QString>

#include <algorithm>

PxPageConstraint::PxPageConstraint(const PxPageType &pageType, const PxPageAlignment &alignment)
{
    setPageTypes(pageType);
    setIntendetAlignment(alignment);
}

PxPageConstraint::PxPageConstraint(const PxPageContext &pageContext)
    : PxPageConstraint(pageContext.pageType(), pageContext.alignment())
{}

PxPageConstraint::PxPageConstraint(const PxPageConstraint &other) = default;
PxPageConstraint &PxPageConstraint::operator=(const PxPageConstraint &other) = default;
PxPageConstraint::~PxPageConstraint() = default;

bool PxPageConstraint::isPageType(const PxPageType &pageType) const
{
    // A negative value has no single bits.
    return m_pageTypes.isEmpty() ||
           (pageType.value() > 0 &&
            std::any_of(m_pageTypes.cbegin(), m_pageTypes.cend(),
                        [&](const PxPageType &own) { return own.matches(pageType.value()); }));
}

bool PxPageConstraint::matches(const PxPageConstraint &other) const
{
    return other.m_pageTypes.sharesKeysWith(m_pageTypes) &&
           other.m_intendetAlignments.sharesKeysWith(m_intendetAlignments);
}

void PxPageConstraint::setPageTypes(const PxPageType &pageType)
{
    m_pageTypes.clear();
    const QList<PxPageTypeEnum> bits = splitEnumType(pageType.value());
    for (PxPageTypeEnum bit : bits)
        m_pageTypes.insert(bit);
}

void PxPageConstraint::addPageType(const PxPageType &pageType)
{
    m_pageTypes.insert(pageType);
}

void PxPageConstraint::setIntendetAlignment(const PxPageAlignment &alignment)
{
    m_intendetAlignments.clear();
    addIntendetAlignment(alignment);
}

void PxPageConstraint::addIntendetAlignment(const PxPageAlignment &alignment)
{
    const QList<PxPageAlignment> bits = splitEnumType(alignment);
    for (PxPageAlignment bit : bits)
        m_intendetAlignments.insert(bit);
}

void PxPageConstraint::toXml(QDomElement &parent) const
{
    for (const PxPageType &pageType : m_pageTypes.sorted())
        PxXMLBuilder::buildDomElement(parent, QStringLiteral("pagetype"), pageType.encodeCSV());
    // Each element is a single bit, so each child holds one keyword, or none for an unassigned bit.
    for (PxPageAlignment alignment : m_intendetAlignments.sorted())
        PxXMLBuilder::buildDomElement(
            parent, QStringLiteral("intendetAlignment"),
            EnumHelper::encodeKeyword(alignment, EnumHelper::globalMapPageAlignmentString,
                                      QString()));
}

QDebug operator<<(QDebug debug, const PxPageConstraint &constraint)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageConstraint(pages " << constraint.pageTypes() << ", alignments "
                           << constraint.intendetAlignments() << ')';
}
