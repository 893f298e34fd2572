#include "check/layout/PxSurroundingCheck.h"

#include "check/PxCheckLimits.h"
#include "check/layout/PxPlacedImage.h"
#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"

#include <QSet>

namespace {

bool isTypePlain(const PxSourceElement &surrounding)
{
    const PxElementReading reading(surrounding);
    return reading.isReadable("type") && !reading.isMisspelt("type");
}

bool isPlain(const PxSourceElement &surrounding)
{
    const PxElementReading reading(surrounding);
    return reading.hasOnlyKnown() && reading.isReadable("type") && reading.isReadable("pageType") &&
           reading.isReadable("alignment") && reading.isReadable("pageNr");
}

QVector<const PxSourceElement *> surroundingElements(const PxSourceElement &product)
{
    QVector<const PxSourceElement *> elements;
    for (const PxSourceElement *list : product.childrenNamed("surroundings"))
        elements += list->childrenNamed("surrounding");
    return elements.mid(0, PxCheckLimits::surroundings);
}

/** The same element with another type, which uses the settings that a frame ignores. */
PxSurroundingDescription withoutFrame(const PxSourceElement &frame)
{
    QDomElement copy = frame.dom.cloneNode(false).toElement();
    copy.setAttribute("type", "BOOK");
    return PxSurroundingDescription(copy);
}

} // namespace

PxSurroundingCheck::PxSurroundingCheck(const PxCheckedProduct &product, const PxProductPages &pages,
                                       bool isInOtherUnit, PxImageNames &images,
                                       const PxReporter &report)
    : m_product(product)
    , m_pages(pages)
    , m_isInOtherUnit(isInOtherUnit)
    , m_images(images)
    , m_report(report)
{
    for (const PxSourceElement *element : surroundingElements(product.element()))
        m_surroundings.append({element, PxSurroundingDescription(element->dom), isPlain(*element)});
}

void PxSurroundingCheck::run()
{
    for (const Surrounding &surrounding : m_surroundings) {
        PxPlacedImage(*surrounding.element)
            .checkFile(surrounding.description.image(), m_images, m_report);
        checkImage(surrounding);
        if (surrounding.description.surroundingType() == PxSurroundingTypeFrame)
            checkFrame(surrounding);
    }
    if (m_pages.isKnown())
        checkUse();
}

/**
 * Reports an image without a rectangle, or the reverse. Without both, a surrounding may still give
 * a shade or keep others from a page. A frame needs no rectangle: it is as large as its page.
 */
void PxSurroundingCheck::checkImage(const Surrounding &surrounding) const
{
    constexpr PxTag tag = PxTag::SurroundingEmpty;
    const QString now = "nothing is painted, and later surroundings of its pages are not used";
    const PxSourceElement &element = *surrounding.element;
    const PxSurroundingDescription &description = surrounding.description;
    const PxPlacedImage placed(element);
    const bool isFrame = description.surroundingType() == PxSurroundingTypeFrame;
    const bool hasImage = !description.image().isEmpty();
    if (!placed.isRectanglePlain() || hasImage == description.imageRect().isValid() ||
        !(hasImage ? isTypePlain(element) : surrounding.isPlain))
        return;
    if (hasImage && (!isFrame || placed.isAnyNumberGiven())) {
        m_report.add(tag, placed.placeOfFault(), "an image without a rectangle: %1", placed.fault())
            .now(now);
    } else if (!hasImage && !isFrame && !description.hasBindingShade()) {
        constexpr const char *image = "image";
        m_report
            .add(tag, element.rangeOf(image), "a rectangle without an image: \"image\" is %1",
                 element.attribute(image) ? QLatin1String("empty") : QLatin1String("missing"))
            .now(now);
    }
}

void PxSurroundingCheck::checkFrame(const Surrounding &frame) const
{
    const PxSurroundingDescription meant = withoutFrame(*frame.element);
    const struct
    {
        QString attribute;
        bool isIgnored;
    } settings[] = {
        {"pageType", meant.pageTypes() != frame.description.pageTypes()},
        // The library also adds "fullpage", but that ignores nothing in the file.
        {"alignment",
         (meant.alignments() | PxPageAlignmentFullPage) != frame.description.alignments()},
        {"pageNr", meant.pageNr() != frame.description.pageNr()},
    };
    QStringList names;
    PxSourceRange place;
    for (const PxSourceAttribute &attribute : frame.element->attributes) {
        for (const auto &setting : settings) {
            if (!setting.isIgnored || setting.attribute != attribute.name)
                continue;
            if (names.isEmpty())
                place = attribute.nameRange;
            names.append(QString("%1=\"%2\"").arg(attribute.name, attribute.value));
        }
    }
    if (names.isEmpty() || !frame.isPlain)
        return;
    m_report
        .add(PxTag::FrameSettingsIgnored, place, "a FRAME has no %1",
             names.join(QLatin1String(", no ")))
        .now("it is painted round every page")
        .hint("for single pages take another type, such as BORDER");
}

void PxSurroundingCheck::checkUse() const
{
    const QVector<PxSurroundingKey> asked = keys();
    if (qint64(asked.size()) * m_surroundings.size() > PxCheckLimits::surroundingQueries)
        return;
    const QVector<Use> all = uses(asked);
    for (int i = 0; i < all.size(); ++i) {
        if (all[i].isUsed || !m_surroundings[i].isPlain)
            continue;
        if (!all[i].isFitting)
            reportUnfit(m_surroundings[i]);
        else if (!all[i].isHiddenByDoubtful)
            reportHidden(m_surroundings[i], m_surroundings[all[i].hiddenBy]);
    }
    for (int i = 0; i < all.size() && !m_isInOtherUnit; ++i) {
        if (all[i].isUsed && m_surroundings[i].isPlain)
            checkPlace(m_surroundings[i], asked);
    }
}

/** The page with its bleed, or the double page; empty if its size is not known. */
QRect PxSurroundingCheck::rectOf(const PxSurroundingKey &page) const
{
    const PxProductTypeDescription &description = m_product.description();
    const QSize size =
        description.usablePrintSize(page.pageType(), m_pages.layouts().constLast().normalPageCount);
    if (size.width() > PxCheckLimits::comparedSide || size.height() > PxCheckLimits::comparedSide)
        return QRect();
    const int times = page.alignment() == PxPageAlignmentFullPage ? 2 : 1;
    const PxBleedMargin bleed = page.pageType().matches(PxPageTypeCover)
                                    ? description.bleedMarginCover()
                                    : description.bleedMarginNormal();
    return PxProductPages::sheet(size * times, bleed.horizontal(), bleed.vertical());
}

/** Spirals, handles and frames lie beside the page, but close to it. */
void PxSurroundingCheck::checkPlace(const Surrounding &surrounding,
                                    const QVector<PxSurroundingKey> &keys) const
{
    const QRect rect = surrounding.description.imageRect();
    QRect first;
    for (const PxSurroundingKey &key : keys) {
        if (!surrounding.description.isSuitable(key))
            continue;
        const QRect page = rectOf(key);
        const int h = page.width() / 10;
        const int v = page.height() / 10;
        if (page.isEmpty() || page.adjusted(-h, -v, h, v).intersects(rect))
            return;
        if (first.isEmpty())
            first = page;
    }
    if (first.isEmpty() || !rect.isValid())
        return;
    const bool isBeside = rect.left() > first.right() || rect.right() < first.left();
    m_report
        .add(PxTag::SurroundingOutside, surrounding.element->rangeOf(isBeside ? "x" : "y"),
             "the image reaches from %1 = %2 to %3, its page with bleed from %4 to %5",
             isBeside ? "x" : "y", isBeside ? rect.left() : rect.top(),
             isBeside ? qint64(rect.left()) + rect.width() : qint64(rect.top()) + rect.height(),
             isBeside ? first.left() : first.top(),
             isBeside ? first.left() + first.width() : first.top() + first.height())
        .now("it is painted there, far from the page");
}

/** All that applications may ask for: pages, and double pages, which only "fullpage" fits. */
QVector<PxSurroundingKey> PxSurroundingCheck::keys() const
{
    QSet<int> pinned;
    for (const Surrounding &surrounding : m_surroundings)
        pinned.insert(surrounding.description.pageNr());
    QVector<PxSurroundingKey> keys;
    QSet<PxPageTypeEnum> doublePages;
    QSet<QPair<int, int>> contexts;
    for (const PxProductPages::Page &page : m_pages.pages()) {
        // Pages that no surrounding names differ in type and side only.
        const QPair<int, int> context(page.type.value(), page.alignment);
        if (!pinned.contains(page.number) && contexts.contains(context))
            continue;
        if (!pinned.contains(page.number))
            contexts.insert(context);
        keys.append(PxSurroundingKey(PxPageContext(page.type, page.alignment), page.number));
        keys.append(
            PxSurroundingKey(PxPageContext(page.type, PxPageAlignmentFullPage), page.number));
    }
    return keys;
}

QVector<PxSurroundingCheck::Use> PxSurroundingCheck::uses(
    const QVector<PxSurroundingKey> &keys) const
{
    QVector<Use> uses(m_surroundings.size());
    for (const PxSurroundingKey &key : keys) {
        int first = -1;
        for (int i = 0; i < m_surroundings.size(); ++i) {
            if (!m_surroundings[i].description.isSuitable(key))
                continue;
            uses[i].isFitting = true;
            if (first < 0) {
                first = i;
                uses[i].isUsed = true;
                continue;
            }
            if (uses[i].hiddenBy < 0)
                uses[i].hiddenBy = first;
            if (!m_surroundings[first].isPlain)
                uses[i].isHiddenByDoubtful = true;
        }
    }
    return uses;
}

void PxSurroundingCheck::reportUnfit(const Surrounding &surrounding) const
{
    const bool isPinned = surrounding.description.pageNr() != -1;
    const bool hasType = surrounding.description.pageTypes().matches(m_pages.pageTypes().value());
    const char *attribute = isPinned ? "pageNr" : hasType ? "alignment" : "pageType";
    const QString value = surrounding.element->value(attribute);
    const char *message = "the product has no page of type \"%1\"";
    if (isPinned)
        message = "the product has no page %1: its pages are 0 to %2";
    else if (hasType)
        message = surrounding.element->attribute(attribute)
                      ? "no page of these types lies at \"%1\""
                      : "no page of these types lies on any of these sides";
    m_report
        .add(PxTag::SurroundingUnreachable, surrounding.element->rangeOf(attribute), message, value,
             m_pages.lastPage())
        .now("it is never painted");
}

void PxSurroundingCheck::reportHidden(const Surrounding &surrounding, const Surrounding &by) const
{
    const PxPlace place = m_report.place(by.element->nameRange);
    m_report
        .add(PxTag::SurroundingUnreachable, surrounding.element->nameRange,
             "every page that this is for has an earlier surrounding already")
        .now("it is never painted, but the one in %1", place)
        .hint(surrounding.description.pageNr() == -1 ? "" : "put it before %1", place);
}
