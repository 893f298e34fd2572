#include "description/PxProductTypeDescription.h"

#include "description/PxUserDefaults.h"
#include "geometry/PxClampedArithmetic.h"

#include <PxListParts.h>
#include <PxMessage.h>
#include <PxXMLParser.h>

#include <QDomElement>
#include <QHash>

#include <algorithm>
#include <array>

namespace {

PxBleedMargin createBleedMargin(const QDomElement &product, const QString &common,
                                const QString &horizontal, const QString &vertical)
{
    const int bleed = PxXMLParser::intAttribute(product, common, 0);
    return PxBleedMargin(PxXMLParser::intAttribute(product, horizontal, bleed),
                         PxXMLParser::intAttribute(product, vertical, bleed));
}

/** The numbers in the text of a child element. */
QList<int> decodeIntList(const QDomElement &product, const QString &tag)
{
    return pxIntList(product.firstChildElement(tag).text());
}

template <typename ENUM>
ENUM decodeKeywords(const QDomElement &product, const QString &attribute,
                    const QHash<QString, ENUM> &map, ENUM fallback)
{
    return EnumHelper::decodeKeywordList(product.attribute(attribute), map, fallback);
}

} // namespace

PxProductTypeDescription::PxProductTypeDescription() = default;

PxProductTypeDescription::PxProductTypeDescription(const QDomElement &product)
    : PxProductTypeDescription(product, PxUserDefaults())
{}

PxProductTypeDescription::PxProductTypeDescription(const QDomElement &product,
                                                   const PxUserDefaults &userDefaults)
    : m_classification(product)
{
    readCounts(product);
    m_imageFX =
        decodeKeywords(product, QStringLiteral("imageFXs"), EnumHelper::globalMapImageFXsString,
                       EnumHelper::globalImageFXsDefaultValue);
    m_assemblyWay = decodeKeywords(product, QStringLiteral("assemblyWay"),
                                   EnumHelper::globalMapAssemblyWayString,
                                   EnumHelper::globalAssemblyWayDefaultValue);
    m_binding = PxBinding(product.attribute(QStringLiteral("binding")));
    m_paperType = PxPaperType(product.attribute(QStringLiteral("paper")));
    readJigTypes(product);
    readFlags(product);
    readCardAlignment(product);

    m_surroundings = PxSurroundingDescriptionList(product);
    m_rotationRedirects =
        PxPageRotationRedirectList(product.firstChildElement(QStringLiteral("rotationredirects")));
    m_contentDropRedirects =
        PxContentDropRedirectList(product.firstChildElement(QStringLiteral("contentredirects")));
    m_defaultTemplates.applyDefaultsNode(product.firstChildElement(QStringLiteral("defaults")));
    updateDefaultUserTemplatesMap(userDefaults.document(product.attribute(QStringLiteral("name")))
                                      .firstChild()
                                      .firstChildElement(QStringLiteral("defaults")));
    m_barcodes = PxBarcodeList(product.firstChildElement(QStringLiteral("barcodes")));
    indexPages();
    readVariants(product.firstChildElement(QStringLiteral("variants")));
    m_productionNumberingPages = decodeIntList(product, QStringLiteral("productionnumbering"));
    m_pagesWithContent = decodeIntList(product, QStringLiteral("pageswithcontent"));
    std::sort(m_pagesWithContent.begin(), m_pagesWithContent.end());
    m_pagesWithContent.erase(std::unique(m_pagesWithContent.begin(), m_pagesWithContent.end()),
                             m_pagesWithContent.end());
    m_pageNamingStyle = decodeKeywords(product, QStringLiteral("pageNamingStyle"),
                                       EnumHelper::globalMapPageNamingStyleString,
                                       EnumHelper::globalPageNamingStyleDefaultValue);
    readPages(product);

    initPageSizes(product);
    m_hasSpine = m_pageTypes.contains(PxPageType(PxPageTypeSpine));
    initPageNumbering(product.firstChildElement(QStringLiteral("pageNumberConfig")));
    initBackgroundCategories(product);
    m_extraProductionPages = PxProductionExtraPageGroupList(
        product.firstChildElement(QStringLiteral("extra_production_pages")));
    m_foldMargin = decodeFoldMargin(product);
    m_legacyProduct = PxProductType(product.attribute(QStringLiteral("legacy")));
}

void PxProductTypeDescription::setJigTypeFlag(const PxJigType &jigType, bool isSupported)
{
    if (isSupported)
        m_jigTypes |= jigType;
    else
        m_jigTypes.exclude(jigType);
}

void PxProductTypeDescription::updateDefaultUserTemplatesMap(const QDomElement &defaults)
{
    m_userDefaultTemplates.applyDefaultsNode(defaults);
}

void PxProductTypeDescription::readCounts(const QDomElement &product)
{
    struct Row
    {
        QString attribute;
        int PxProductTypeDescription::*member;
    };
    static const auto &ourCounts = *new QVector<Row>{
        {QStringLiteral("safetymargin"), &PxProductTypeDescription::m_safetyMargin},
        {QStringLiteral("defaultSellingPages"), &PxProductTypeDescription::m_defaultSellingPages},
        {QStringLiteral("numOfProducts"), &PxProductTypeDescription::m_explicitNumberOfProducts},
        {QStringLiteral("numOfNormalPages"),
         &PxProductTypeDescription::m_explicitNumberOfNormalPages},
        {QStringLiteral("normalpagehorizontalclamp"),
         &PxProductTypeDescription::m_normalPageHorizontalClamp},
        {QStringLiteral("numOfSpirals"), &PxProductTypeDescription::m_numberOfSpiralLoops},
        {QStringLiteral("editorStartDoublePage"),
         &PxProductTypeDescription::m_editorStartDoublePage},
    };
    for (const Row &row : ourCounts)
        this->*row.member = PxXMLParser::intAttribute(product, row.attribute, this->*row.member);
    m_safetyMargins = PxMargins(m_safetyMargin, m_safetyMargin, m_safetyMargin, m_safetyMargin);
}

void PxProductTypeDescription::readJigTypes(const QDomElement &product)
{
    struct Row
    {
        QString attribute;
        PxJigTypeEnum jigType;
    };
    static const auto &ourJigTypes = *new QVector<Row>{
        {QStringLiteral("hasContentCategoryComboBox"), PxJigTypeContent},
        {QStringLiteral("showLayoutTab"), PxJigTypeLayout},
        {QStringLiteral("canHaveFading"), PxJigTypePassepartout},
        {QStringLiteral("canHaveClipart"), PxJigTypeClipart},
        {QStringLiteral("canHaveBackground"), PxJigTypeBackground},
    };
    for (const Row &row : ourJigTypes)
        setJigTypeFlag(row.jigType, PxXMLParser::boolAttribute(product, row.attribute, true));
}

void PxProductTypeDescription::readFlags(const QDomElement &product)
{
    struct Row
    {
        QString attribute;
        bool PxProductTypeDescription::*member;
    };
    static const auto &ourFlags = *new QVector<Row>{
        {QStringLiteral("hasAssistant"), &PxProductTypeDescription::m_hasAssistant},
        {QStringLiteral("horizontalPages"), &PxProductTypeDescription::m_horizontalPages},
        {QStringLiteral("hasHook"), &PxProductTypeDescription::m_hasHook},
        {QStringLiteral("hasHole"), &PxProductTypeDescription::m_hasHole},
        {QStringLiteral("hasLogoOnSpine"), &PxProductTypeDescription::m_mustPaintVemoLogoOnSpine},
    };
    for (const Row &row : ourFlags)
        this->*row.member = PxXMLParser::boolAttribute(product, row.attribute, this->*row.member);
}

void PxProductTypeDescription::readCardAlignment(const QDomElement &product)
{
    struct Row
    {
        QString attribute;
        CardAlignment alignment;
    };
    static const auto &ourAlignments = *new QVector<Row>{
        {QStringLiteral("cardStyleAlignment"), CardAlignment::CardStyle},
        {QStringLiteral("varioSingleCardStyleAlignment"), CardAlignment::VarioSingleCardStyle},
        {QStringLiteral("collegeBlockStyleAlignment"), CardAlignment::CollegeBlockStyle},
    };
    for (const Row &row : ourAlignments) {
        if (PxXMLParser::boolAttribute(product, row.attribute, false)) {
            m_cardAlignment = row.alignment;
            return;
        }
    }
}

void PxProductTypeDescription::readVariants(const QDomElement &variants)
{
    m_variantDescription = variants.attribute(QStringLiteral("type"));
    for (QDomElement e = variants.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        m_variants.append(e.text());
}

/** The list, cut off behind its first `maximumListEntries` entries. */
QString PxProductTypeDescription::firstEntries(const QString &list, const char *method,
                                               const char *attribute, const QDomElement &product)
{
    int entries = 1;
    int end = -1;
    for (int i = list.indexOf(QLatin1Char(',')); i != -1;
         i = list.indexOf(QLatin1Char(','), i + 1)) {
        if (entries++ == maximumListEntries)
            end = i;
    }
    if (end != -1)
        pxWarning().nospace() << "PxProductTypeDescription::" << method << ' ' << entries
                              << " entries in \"" << attribute << "\" of "
                              << product.attribute(QStringLiteral("name"))
                              << " - used are the first " << maximumListEntries;
    return list.left(end);
}

void PxProductTypeDescription::readPages(const QDomElement &product)
{
    const QDomElement pages = product.firstChildElement(QStringLiteral("pages"));
    if (pages.isNull())
        return;
    // Each entry may give as many pages as the product has.
    m_pageTypes = PxPageTypeList(firstEntries(pages.text(), "readPages", "pages", product));
    m_abstractPageCount = m_pageTypes.size();
}

void PxProductTypeDescription::initPageSizes(const QDomElement &product)
{
    m_bleedMarginNormal = createBleedMargin(product, QStringLiteral("bleedmargin"),
                                            QStringLiteral("bleedmarginhorizontal"),
                                            QStringLiteral("bleedmarginvertical"));
    m_bleedMarginCover = createBleedMargin(product, QStringLiteral("bleedmargincover"),
                                           QStringLiteral("bleedmargincoverhorizontal"),
                                           QStringLiteral("bleedmargincoververtical"));
    initSpineData(product.firstChildElement(QStringLiteral("spines")));

    const QDomElement usableSize = product.firstChildElement(QStringLiteral("usablesize"));
    if (!usableSize.isNull())
        m_usableSize = PxXMLParser::readSize(usableSize);
    m_coverExtraVertical =
        PxXMLParser::intAttribute(product, QStringLiteral("coverextravertical"), 0);
    m_coverExtraHorizontal =
        PxXMLParser::intAttribute(product, QStringLiteral("coverextrahorizontal"), 0);

    const QString orientation = QStringLiteral("orientation");
    m_orientation = PxOrientation(usableSize.attribute(orientation));
    if (m_orientation.isNull())
        m_orientation = PxOrientation(product.attribute(orientation), QSizeF(m_usableSize));

    const QString space = QStringLiteral("space");
    const QString spaceOfSize = usableSize.attribute(space);
    m_spaceMagnitude =
        PxSpaceMagnitude(spaceOfSize.isEmpty() ? product.attribute(space) : spaceOfSize);

    adjustSpineWidth();
}

void PxProductTypeDescription::initSpineData(const QDomElement &spines)
{
    const QString tag = QStringLiteral("spine");
    for (QDomElement e = spines.firstChildElement(tag); !e.isNull(); e = e.nextSiblingElement(tag))
        m_spines.append({PxXMLParser::intAttribute(e, QStringLiteral("pages"), 0),
                         PxProductTypeDescriptionSpineData(e)});
    // Of two entries with the same page count the later one is used: it comes first after
    // reversing.
    std::reverse(m_spines.begin(), m_spines.end());
    std::stable_sort(m_spines.begin(), m_spines.end(),
                     [](const Spine &a, const Spine &b) { return a.pageCount < b.pageCount; });
    const auto end =
        std::unique(m_spines.begin(), m_spines.end(),
                    [](const Spine &a, const Spine &b) { return a.pageCount == b.pageCount; });
    m_spines.erase(end, m_spines.end());
    m_spines.squeeze();
    m_pageIncrement = findPageIncrement();
}

void PxProductTypeDescription::adjustSpineWidth()
{
    if (!m_classification.productType().isBook() || spineWidth(minPages()) <= 0)
        return;
    // The spine gains the width that the two halves of the cover lose.
    for (Spine &spine : m_spines)
        spine.data.considerExtraCoverWidth(20);
    m_coverExtraHorizontal = pxClampedSum(m_coverExtraHorizontal, -10);
}

void PxProductTypeDescription::initPageNumbering(const QDomElement &pageNumberConfig)
{
    const QDomElement margin = pageNumberConfig.firstChildElement(QStringLiteral("margin"));
    m_pageNumberVerticalIndent = PxXMLParser::intAttribute(margin, QStringLiteral("verticalMargin"),
                                                           m_pageNumberVerticalIndent);
    m_pageNumberHorizontalIndent = PxXMLParser::intAttribute(
        margin, QStringLiteral("horizontalMargin"), m_pageNumberHorizontalIndent);
    const QDomElement font = pageNumberConfig.firstChildElement(QStringLiteral("font"));
    m_pageNumberFontSize =
        PxXMLParser::intAttribute(font, QStringLiteral("fontSize"), m_pageNumberFontSize);
}

void PxProductTypeDescription::initBackgroundCategories(const QDomElement &product)
{
    const PxProductType type = m_classification.productType();
    m_fullBackgroundOnEachPage =
        PxXMLParser::boolAttribute(product, QStringLiteral("fullBackgroundOnEachPage"),
                                   type.isCalendar() || type.isGift() || type.isCard());
    const QString categories =
        product.attribute(QStringLiteral("coverBackgroundCategories"),
                          type.isDeko() ? QStringLiteral("Einfarbig") : QString());
    // Inserting very many names that share one hash into a set would take minutes.
    m_allowedBackgroundCategories = PxThematicCategorySet(
        firstEntries(categories, "initBackgroundCategories", "coverBackgroundCategories", product)
            .split(QLatin1Char(','), Qt::SkipEmptyParts));
}

// Applications ask these questions for every page of a product. With these indexes a look-up stays
// fast, however many entries the file has. Other redirects are few, or ranges, and are searched one
// by one.

void PxProductTypeDescription::indexPages()
{
    indexSurroundings();
    for (int index = 0; index < m_rotationRedirects.size(); ++index)
        m_rotationsBySource.append({m_rotationRedirects.at(index).sourcePageNr(), index});
    for (int index = 0; index < m_barcodes.size(); ++index) {
        const PxBarcode &barcode = m_barcodes.at(index);
        PageIndexes &barcodes = barcode.reverseOrder() ? m_barcodesFromBack : m_barcodesFromFront;
        barcodes.append({barcode.pageNr(), index});
    }
    for (PageIndexes *indexes :
         {&m_pinnedSurroundings, &m_rotationsBySource, &m_barcodesFromFront, &m_barcodesFromBack}) {
        std::sort(indexes->begin(), indexes->end());
        indexes->squeeze();
    }
}

void PxProductTypeDescription::indexSurroundings()
{
    std::array<int, 32> alignmentsOfType{}; // of the earlier surroundings, by bit of the page type
    for (int index = 0; index < m_surroundings.size(); ++index) {
        const PxSurroundingDescription &surrounding = m_surroundings.at(index);
        if (surrounding.pageNr() != -1) {
            m_pinnedSurroundings.append({surrounding.pageNr(), index});
            continue;
        }
        // The first one is the result when no particular page is asked for, whatever the page type.
        bool isFirst = m_generalSurroundings.isEmpty();
        unsigned types = unsigned(surrounding.pageTypes().value());
        for (int &earlier : alignmentsOfType) {
            if ((types & 1U) != 0) {
                isFirst = isFirst || (surrounding.alignments() & ~earlier) != 0;
                earlier |= surrounding.alignments();
            }
            types >>= 1U;
        }
        if (isFirst)
            m_generalSurroundings.append(index);
    }
}

int PxProductTypeDescription::decodeFoldMargin(const QDomElement &product) const
{
    const int foldMargin = PxXMLParser::intAttribute(product, QStringLiteral("foldmargin"), -1);
    if (foldMargin != -1)
        return foldMargin;
    if (!m_surroundings.hasSurroundingWithBindingShade() || !m_usableSize.isValid())
        return 0;
    // The part of a page's width that is hidden in the binding of this product line.
    switch (m_orientation.value()) {
    case PxOrientationPortrait:
        return int(m_usableSize.width() * 0.053659);
    case PxOrientationLandscape:
        return int(m_usableSize.width() * 0.040741);
    case PxOrientationQuadratic:
        return int(m_usableSize.width() * 0.044878);
    default:
        return 0;
    }
}
