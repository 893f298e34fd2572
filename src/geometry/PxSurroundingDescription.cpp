#include "geometry/PxSurroundingDescription.h"

#include "geometry/PxPageAlignments.h"

#include <PxXMLParser.h>

#include <QDebug>
#include <QDomElement>

namespace {

PxPageType readPageTypes(const QDomElement &surrounding, int *undecodable)
{
    const QString keywords =
        surrounding.attribute(QStringLiteral("pageType"), QStringLiteral("all"));
    const auto *table = PxPageType().enumToStringTable();
    return undecodable ? table->decodeCSV(keywords, *undecodable) : table->decodeCSV(keywords);
}

} // namespace

PxSurroundingDescription::PxSurroundingDescription(const QDomElement &surrounding, int *undecodable)
    : m_surroundingType(EnumHelper::decodeKeyword(
          surrounding.attribute(QStringLiteral("type"), QStringLiteral("book")),
          EnumHelper::globalMapSurroundingTypeString,
          EnumHelper::globalSurroundingTypeDefaultValue))
    , m_pageTypes(readPageTypes(surrounding, undecodable))
    , m_alignments(pxPageAlignments(surrounding))
    , m_pageNr(PxXMLParser::intAttribute(surrounding, QStringLiteral("pageNr"), -1))
    , m_paintOnTop(PxXMLParser::boolAttribute(surrounding, QStringLiteral("paintOnTop"), true))
    , m_image(surrounding.attribute(QStringLiteral("image")))
    , m_imageRect(PxXMLParser::readRect(surrounding))
    , m_hasBindingShade(
          PxXMLParser::boolAttribute(surrounding, QStringLiteral("hasbindingshade"), false))
{
    if (m_surroundingType == PxSurroundingTypeFrame) {
        m_pageTypes = PxPageTypeAll;
        m_alignments = PxPageAlignmentAll;
        m_pageNr = -1;
    }
}

bool PxSurroundingDescription::isSuitable(const PxSurroundingKey &key) const
{
    return PxSurroundingKey(PxPageContext(m_pageTypes, m_alignments), m_pageNr).isOkayFor(key);
}

bool PxSurroundingDescription::operator==(const PxSurroundingDescription &other) const
{
    return m_surroundingType == other.m_surroundingType && m_pageTypes == other.m_pageTypes &&
           m_alignments == other.m_alignments && m_pageNr == other.m_pageNr &&
           m_paintOnTop == other.m_paintOnTop && m_image == other.m_image &&
           m_imageRect == other.m_imageRect && m_hasBindingShade == other.m_hasBindingShade;
}

bool PxSurroundingDescription::operator<(const PxSurroundingDescription &other) const
{
    // Not a strict order: a later field decides even if an earlier one is greater.
    return m_surroundingType < other.m_surroundingType || m_pageTypes < other.m_pageTypes ||
           m_alignments < other.m_alignments || m_pageNr < other.m_pageNr ||
           m_paintOnTop < other.m_paintOnTop || m_imageRect.top() < other.m_imageRect.top() ||
           m_imageRect.left() < other.m_imageRect.left() ||
           m_imageRect.bottom() < other.m_imageRect.bottom() ||
           m_imageRect.right() < other.m_imageRect.right() ||
           m_hasBindingShade < other.m_hasBindingShade || m_image < other.m_image;
}

QDebug operator<<(QDebug debug, const PxSurroundingDescription &surrounding)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxSurroundingDescription(type " << int(surrounding.surroundingType())
                           << ", " << surrounding.pageTypes() << ", alignments "
                           << int(surrounding.alignments()) << ", page " << surrounding.pageNr()
                           << ", " << surrounding.image() << ", " << surrounding.imageRect() << ')';
}
