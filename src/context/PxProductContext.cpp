#include "context/PxProductContext.h"

#include "description/PxProductTypeConfigRegistry.h"
#include "geometry/PxClampedArithmetic.h"
#include "themes/PxThemeFactory.h"

#include <PxPageOrganizationManager.h>

#include <QDebug>
#include <QtMath>

#include <limits>

namespace {

/** Truncated; 0 if the ratio is 0 or not finite. */
int iconHeight(int width, double widthByHeight)
{
    const double height = width / widthByHeight;
    if (!qIsFinite(widthByHeight) || !qIsFinite(height))
        return 0;
    return int(
        qBound<double>(std::numeric_limits<int>::min(), height, std::numeric_limits<int>::max()));
}

const PxPageOrganizationManager *pageOrganization()
{
    return PxPageOrganizationManager::instance();
}

} // namespace

PxProductContext::PxProductContext() : PxProductContext(PxProductType(0)) {}

PxProductContext::PxProductContext(const PxProductType &type)
    : PxProductContext(type, PxThemeFactory::instance()->defaultTheme())
{}

PxProductContext::PxProductContext(const PxProductType &type, const QString &themeId)
    : PxProductContext(type, PxThemeFactory::instance()->findTheme(themeId))
{}

PxProductContext::PxProductContext(const PxProductType &type, const PxTheme &theme)
    : d(new PxProductContextImpl(type, theme))
{}

PxProductContext::PxProductContext(const PxProductContext &other) = default;
PxProductContext &PxProductContext::operator=(const PxProductContext &other) = default;
PxProductContext::~PxProductContext() = default;

bool PxProductContext::isValid() const
{
    return d->productType.isValid() && d->theme.allowedProductTypes().sharesKey(d->productType);
}

bool PxProductContext::isVoidContext() const
{
    return *this == PxProductContext();
}

bool PxProductContext::isProductClass(PxProductClass classes) const
{
    return d->productType.isProductClass(classes);
}

bool PxProductContext::startsWithLeftPage() const
{
    return d->productType.type() == 13; // the one product whose first page is a left one
}

PxProductTypeList PxProductContext::compatibleProducts() const
{
    return compatibleProducts(PxProductComparationSpaceMagnitude |
                              PxProductComparationPageIncrement);
}

PxProductTypeList PxProductContext::compatibleProductsWithTheSameSize() const
{
    return compatibleProducts(PxProductComparationSpaceMagnitude);
}

bool PxProductContext::isVerySimilarTo(const PxProductContext &other) const
{
    return d->theme == other.d->theme && spaceMagnitude() == other.spaceMagnitude() &&
           orientation() == other.orientation() && paperType() == other.paperType();
}

// Forwarders to the page organization, asked with the product type.
// clang-format off
int PxProductContext::minPages() const { return pageOrganization()->minPages(d->productType); }
int PxProductContext::maxPages() const { return pageOrganization()->maxPages(d->productType); }
int PxProductContext::pageIncrement() const { return pageOrganization()->pageIncrement(d->productType); }
PxPageCountOrganization PxProductContext::pageCountOrganization() const { return pageOrganization()->pageCountOrganzation(d->productType); }

// Forwarders to the description: page counts and pages.
QList<int> PxProductContext::offeredPageCounts() const { return d->description->offeredPageCounts(); }
bool PxProductContext::isPageCountOffered(int pageCount) const { return d->description->isPageCountOffered(pageCount); }
bool PxProductContext::isSimplex() const { return d->description->isSimplex(); }
int PxProductContext::defaultSellingPages() const { return d->description->defaultSellingPages(); }
int PxProductContext::productCount() const { return d->description->explicitNumberOfProducts(); }
int PxProductContext::numberOfPages() const { return d->description->explicitNumberOfNormalPages(); }
int PxProductContext::editorStartSceneIndex() const { return d->description->editorStartDoublePage(); }
PxPageTypeList PxProductContext::pageTypes(int pageCount) const { return d->description->pageTypes(pageCount); }
PxPageAlignment PxProductContext::pageAlignment(int page) const { return d->description->pageAlignment(page); }
int PxProductContext::contentDropRedirect(int page) const { return d->description->contentDropRedirect(page); }
PxPageRotationRedirectList PxProductContext::rotationRedirectForSourcePage(int page) const { return d->description->rotationRedirectForSourcePage(page); }
PxPageRotationRedirectList PxProductContext::rotationRedirectForTargetPage(int page) const { return d->description->rotationRedirectForTargetPage(page); }
PxPageNamingStyle PxProductContext::pageNamingStyle() const { return d->description->pageNamingStyle(); }
PxAssemblyWay PxProductContext::assemblyWay() const { return d->description->assemblyWay(); }
int PxProductContext::pageNumberFontSize() const { return d->description->pageNumberFontSize(); }
double PxProductContext::pageNumberVerticalIndent() const { return d->description->pageNumberVerticalIndent(); }
double PxProductContext::pageNumberHorizontalIndent() const { return d->description->pageNumberHorizontalIndent(); }

// Forwarders to the description: geometry and material.
QSizeF PxProductContext::usablePrintSize(const PxPageType &pageType) const { return d->description->usablePrintSize(pageType, -1); }
bool PxProductContext::horizontalPages() const { return d->description->horizontalPages(); }
PxOrientation PxProductContext::orientation() const { return d->description->orientation(); }
PxPaperType PxProductContext::paperType() const { return d->description->paperType(); }
PxSpaceMagnitude PxProductContext::spaceMagnitude() const { return d->description->spaceMagnitude(); }
int PxProductContext::foldMargin() const { return d->description->foldMargin(); }
int PxProductContext::safetyMargin() const { return d->description->safetyMargin(); }
PxBinding PxProductContext::binding() const { return d->description->binding(); }
bool PxProductContext::hasSpine() const { return d->description->hasSpine(); }
int PxProductContext::spineWidth(int pageCount) const { return d->description->spineWidth(pageCount); }
int PxProductContext::spineMaxFontHeight(int pageCount) const { return d->description->spineMaxFontHeight(pageCount); }
bool PxProductContext::hasHole() const { return d->description->hasHole(); }
bool PxProductContext::hasHook() const { return d->description->hasHook(); }
int PxProductContext::numberOfSpiralLoops() const { return d->description->numberOfSpiralLoops(); }

// Forwarders to the description: decoration and editor.
PxSurroundingDescription PxProductContext::findSurrounding(const PxSurroundingKey &key) const { return d->description->findSurrounding(key); }
PxProductionExtraPageGroupList PxProductContext::extraProductionContents() const { return d->description->extraProductionContents(); }
bool PxProductContext::putFullBackgroundOnEachPage() const { return d->description->fullBackgroundOnEachPage(); }
bool PxProductContext::hasAssistant() const { return d->description->hasAssistant(); }
bool PxProductContext::hasContentCategoryComboBox() const { return d->description->hasContentCategoryBox(); }
PxImageFXs PxProductContext::productImageFXs() const { return d->description->imageFX(); }
bool PxProductContext::canHaveShadow() const { return d->description->canHaveShadow(); }
bool PxProductContext::canHaveBorder() const { return d->description->canHaveBorder(); }
bool PxProductContext::supportsJigType(const PxJigType &jigType) const { return d->description->supportsJigType(jigType); }
bool PxProductContext::mustPaintVemoLogoOnSpine() const { return d->description->mustPaintVemoLogoOnSpine(); }
// clang-format on

bool PxProductContext::isOnePage() const
{
    return minPages() == 1;
}

bool PxProductContext::isDuplex() const
{
    return !isSimplex() && !isOnePage();
}

int PxProductContext::pagesPerProduct() const
{
    if (productCount() == 0)
        return 0;
    return pxClampedInt(qint64(numberOfPages()) / productCount());
}

bool PxProductContext::useTwoStoryBoards() const
{
    return productCount() >= 2 && pagesPerProduct() > 1;
}

bool PxProductContext::contentAllowedOnPage(int page) const
{
    return d->theme.isThemeWithContent() && d->description->contentAllowedOnPage(page);
}

double PxProductContext::widthByHeight() const
{
    const QSizeF size = usablePrintSize(PxPageTypeNormalPage);
    return size.width() / size.height();
}

QSize PxProductContext::optimumIconSizeSinglePage(int width) const
{
    return QSize(width, iconHeight(width, widthByHeight()));
}

QSize PxProductContext::optimumIconSize(int width) const
{
    double ratio = widthByHeight();
    if (hasHorizontalPages() && isDuplex())
        ratio *= 2; // two pages side by side
    else if (isCalendar() && isDuplex())
        ratio /= 2; // two pages one above the other
    return QSize(width, iconHeight(width, ratio));
}

QSize PxProductContext::minimumImageAreaSize() const
{
    return QSize(100, 100);
}

bool PxProductContext::hasBinding(const PxBinding &binding) const
{
    return d->description->binding().matches(binding.value());
}

bool PxProductContext::canHaveStyles() const
{
    return supportsJigType(PxJigTypeBackground) && isBook();
}

bool PxProductContext::mustPaintVemoLogo() const
{
    return d->theme.mustPaintVemoLogo(d->productType);
}

QString PxProductContext::defaultTemplateForPage(bool doublePage, const PxPageContext &pageContext,
                                                 bool useUserDefaults) const
{
    return defaultTemplateForPage(doublePage, pageContext, true, useUserDefaults);
}

void PxProductContext::setTheme(const PxTheme &theme)
{
    d->theme = theme;
}

void PxProductContext::setProductType(const PxProductType &type)
{
    d->setProductType(type);
}

bool PxProductContext::operator==(const PxProductContext &other) const
{
    return d == other.d || *d == *other.d;
}

uint PxProductContext::hash() const
{
    return qHash(QString(shortProductName() + themeId()), 0);
}

PxProductTypeList PxProductContext::compatibleProducts(
    PxProductComparationCriterion criterion) const
{
    return d->theme.allowedProductTypes().sharedKeys(
        PxProductTypeConfigRegistry::instance()->findCompatibleProducts(d->productType, criterion));
}

QString PxProductContext::defaultTemplateForPage(bool doublePage, const PxPageContext &pageContext,
                                                 bool useFallback, bool useUserDefaults) const
{
    if (!doublePage && pageContext.isPageType(PxPageTypeEmptyPage))
        return QStringLiteral("Weiss");
    const PxDefaultTemplateKey key(themeId(), pageContext,
                                   doublePage ? DefaultTemplateTypeLayout
                                              : DefaultTemplateTypeBackground);
    return d->description->findDefaultTemplate(key, useFallback, useUserDefaults);
}

QDebug operator<<(QDebug debug, const PxProductContext &context)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductContext(" << context.productType() << ", "
                           << context.theme() << ')';
}
