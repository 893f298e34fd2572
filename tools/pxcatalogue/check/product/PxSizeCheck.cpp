#include "check/product/PxSizeCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *width = "width";
constexpr const char *height = "height";
constexpr const char *orientation = "orientation";
constexpr const char *space = "space";

/** The longer side is more than numerator/denominator of the shorter one. */
bool isLonger(qint64 side, qint64 other, int numerator, int denominator)
{
    return side * denominator > other * numerator;
}

/** Leaves room for pages that are nearly square or nearly round: those may be called either. */
bool contradicts(PxOrientationEnum said, const QSize &size)
{
    const qint64 w = size.width();
    const qint64 h = size.height();
    switch (said) {
    case PxOrientationPortrait:
        return isLonger(w, h, 21, 20);
    case PxOrientationLandscape:
        return isLonger(h, w, 21, 20);
    case PxOrientationQuadratic:
        return isLonger(qMax(w, h), qMin(w, h), 6, 5);
    case PxOrientationPanorama:
        return !isLonger(w, h, 6, 5);
    case PxOrientationPortraitPanorama:
        return !isLonger(h, w, 6, 5);
    case PxOrientationRound:
        return isLonger(qMax(w, h), qMin(w, h), 3, 2);
    default: // unknown, or several at once
        return false;
    }
}

/** The larger number divided by the smaller one. */
double ratio(double a, double b)
{
    return a > b ? a / b : b / a;
}

struct SizeClass
{
    PxSpaceMagnitudeEnum value;
    int area; ///< in square centimetres
};

constexpr double roughness = 1.5; // how far a page may be from the area of its class

constexpr SizeClass sizeClasses[] = {
    {PxSpaceMagnitude150, 150}, {PxSpaceMagnitude200, 200},   {PxSpaceMagnitude280, 280},
    {PxSpaceMagnitude310, 310}, {PxSpaceMagnitude400, 400},   {PxSpaceMagnitude600, 600},
    {PxSpaceMagnitude900, 900}, {PxSpaceMagnitude1200, 1200},
};

/** The class that a product names; null for every class, or several. */
const SizeClass *namedClass(const PxProductTypeDescription &product)
{
    const auto *named =
        std::find_if(std::begin(sizeClasses), std::end(sizeClasses), [&](const SizeClass &row) {
            return product.spaceMagnitude().hasValue(row.value);
        });
    return named == std::end(sizeClasses) ? nullptr : named;
}

double areaOf(const QSize &size)
{
    return size.width() / 100.0 * (size.height() / 100.0);
}

} // namespace

PxSizeCheck::PxSizeCheck(const PxCheckedProduct &product, const PxReporter &report)
    : m_product(product)
    , m_report(report)
    , m_usableSize(product.element().firstChild("usablesize"))
    , m_size(product.description().usablePrintSize(PxPageTypeNormalPage, 0))
{}

void PxSizeCheck::run()
{
    if (!m_usableSize)
        return;
    checkPresence();
    checkArea();
    checkShadowing();
    if (!m_size.isEmpty()) {
        if (checkOrientation())
            checkSpace();
    }
}

void PxSizeCheck::checkPresence() const
{
    const PxElementReading reading(*m_usableSize);
    const QStringList missing = reading.missingOf({width, height});
    if (missing.isEmpty())
        return;
    const PxMissingPart side = reading.missing(qPrintable(missing.constFirst()));
    m_report
        .add(PxTag::SizeMissing, side.range, "the size has no %1",
             PxMessageText::quotedList(missing, " and no "))
        .now("the product is never offered")
        .hint(side.hint);
}

void PxSizeCheck::checkArea() const
{
    for (const char *side : {width, height}) {
        const PxElementReading reading(*m_usableSize);
        const int length = reading.number(side);
        if (!reading.isNumber(side) || length > 0)
            continue;
        const PxSourceRange range = m_usableSize->rangeOf(side);
        if (m_product.description().isValid())
            m_report.add(PxTag::SizeNotPositive, range, "a page of the %1 0", side)
                .now("the product is offered, with pages of %1 x %2", m_size.width(),
                     m_size.height());
        else if (length < 0)
            m_report.add(PxTag::ProductNotOffered, range, "a page of the %1 %2", side, length)
                .now("the product is never offered, as it has no valid size");
        else if (m_size.isValid())
            m_report
                .add(PxTag::ProductNotOffered, range, "a page of the %1 0, and no orientation",
                     side)
                .now("the product is never offered, as no orientation follows from a size without "
                     "area");
        return;
    }
}

void PxSizeCheck::checkShadowing() const
{
    const PxSourceElement &element = m_product.element();
    const auto add = [&](const char *name) {
        m_report
            .add(PxTag::SizeAttributeShadowed, element.rangeOf(name),
                 "\"%1\" of the product differs from that of its size", name)
            .now("\"%1\" in %2 is used", m_usableSize->value(name),
                 m_report.place(m_usableSize->rangeOf(name)))
            .hint("keep the one that is meant");
    };
    const PxOrientation ownOrientation(element.value(orientation));
    const PxOrientation sizeOrientation(m_usableSize->value(orientation));
    if (ownOrientation.isValid() && sizeOrientation.isValid() && ownOrientation != sizeOrientation)
        add(orientation);
    const PxSpaceMagnitude ownSpace(element.value(space));
    const PxSpaceMagnitude sizeSpace(m_usableSize->value(space));
    // An unknown word is read as every class at once.
    if (element.attribute(space) && !m_usableSize->value(space).isEmpty() &&
        !ownSpace.hasValue(PxSpaceMagnitudeAny) && ownSpace != sizeSpace)
        add(space);
}

/** Whether nothing was found. If something was, the area says nothing new. */
bool PxSizeCheck::checkOrientation() const
{
    const PxOrientation used = m_product.description().orientation();
    if (!contradicts(used.value(), m_size))
        return true;
    const PxOrientation ofSize(m_usableSize->value(orientation));
    const PxSourceElement &place = ofSize.isValid() ? *m_usableSize : m_product.element();
    PxOrientation meant(QString(), m_size);
    if (used.hasValue(PxOrientationPanorama) && isLonger(m_size.height(), m_size.width(), 2, 1))
        meant = PxOrientation(PxOrientationPortraitPanorama);
    if (used.hasValue(PxOrientationPortraitPanorama) &&
        isLonger(m_size.width(), m_size.height(), 2, 1))
        meant = PxOrientation(PxOrientationPanorama);
    m_report
        .add(PxTag::OrientationContradictsSize, place.rangeOf(orientation),
             "%1, but the page is %2 x %3", used.encodeCSV(), m_size.width(), m_size.height())
        .now("%1 is used, whatever the size", used.encodeCSV())
        .hint("did you mean \"%1\", or is the size wrong?", meant.encodeCSV());
    return false;
}

void PxSizeCheck::checkSpace() const
{
    const PxSpaceMagnitude used = m_product.description().spaceMagnitude();
    const SizeClass *named = namedClass(m_product.description());
    if (!named)
        return;
    if (isInOtherUnit()) {
        addOtherUnit(named->area);
        return;
    }
    const double area = areaOf(m_size);
    const auto *nearest = std::min_element(std::begin(sizeClasses), std::end(sizeClasses),
                                           [&](const SizeClass &a, const SizeClass &b) {
                                               return ratio(a.area, area) < ratio(b.area, area);
                                           });
    // Classes are rough, and some pages lie between two of them.
    if (ratio(named->area, area) <= roughness || ratio(nearest->area, area) > 1.25)
        return;
    const PxSourceElement &place =
        m_usableSize->value(space).isEmpty() ? m_product.element() : *m_usableSize;
    m_report
        .add(PxTag::SpaceContradictsSize, place.rangeOf(space), "%1, but the page has %2 cm²",
             used.encodeCSV(), qRound(area))
        .now("templates and type sizes of \"%1\" are used", used.humanReadableName())
        .hint(PxSpelling::didYouMean(PxSpaceMagnitude(nearest->value).encodeCSV()));
}

bool PxSizeCheck::isInOtherUnit() const
{
    const SizeClass *named = namedClass(m_product.description());
    // Ten times in either direction, within what the classes leave open.
    return named && !m_size.isEmpty() &&
           ratio(ratio(named->area, areaOf(m_size)), 100) <= roughness;
}

void PxSizeCheck::addOtherUnit(int namedArea) const
{
    const bool isSmaller = areaOf(m_size) < namedArea;
    const QSize meant = isSmaller ? m_size * 10 : m_size / 10;
    m_report
        .add(PxTag::SizeInOtherUnit, m_usableSize->rangeOf(width),
             "%1 x %2 is ten times %3 than \"%4\" says", m_size.width(), m_size.height(),
             isSmaller ? QLatin1String("smaller") : QLatin1String("larger"),
             m_product.description().spaceMagnitude().encodeCSV())
        .now("the size is taken as it is")
        .hint("lengths are in tenths of a millimetre: %1 x %2?", meant.width(), meant.height());
}
