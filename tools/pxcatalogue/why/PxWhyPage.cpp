// The question about a page, and what it gets.

#include "format/PxCatalogueKeywords.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"
#include "why/PxWhyRules.h"
#include "why/PxWhyTemplates.h"

#include <PxMessage.h>
#include <geometry/PxBarcodeList.h>
#include <geometry/PxSurroundingDescriptionList.h>

namespace {

using Elements = QVector<const PxSourceElement *>;

struct Page
{
    int number;
    int pages; // of the product, covers included
    PxPageContext context;
};

/** What the page is, as far as entries are chosen by it. */
QString kindOf(const Page &page)
{
    return QString("%1 %2").arg(
        keywordOf(page.context.pageType()),
        keywordsOf(page.context.alignment(), EnumHelper::globalMapPageAlignmentString).join(','));
}

PxWhyRule sizeRule(const PxWhyProduct &product, const Page &page)
{
    PxShownProduct shown = product.shown();
    shown.kinds = {page.context};
    shown.pagesOfKind = {{page.number}};
    const PxPageSizeSpec size =
        product.description().sizeSpec(PxPageSizeKey(page.context, shown.pageCount));
    // A page is as large as all of its kind: better the place where that is written.
    PxOrigin origin = PxOrigins(shown, product.files()).at("/pageKinds/0/usableSize");
    const PxOrigin::Part first = origin.from.value(0);
    if (origin.place.line == 0 && !first.text.isEmpty())
        origin = product.origin(first.text);
    return {"page-size",
            true,
            {kindOf(page)},
            {PxReportValue::size(size.usableSize()), PxReportFormat::Size},
            {origin}};
}

/** The first entry that fits is used: `reasonAgainst` says why one does not, or nothing. */
template <typename LIST, typename REASON>
void chooseFirst(const PxWhyProduct &product, const Elements &elements, const LIST &list,
                 REASON reasonAgainst, PxWhyRule *rule)
{
    for (int i = 0; i < qMin(elements.size(), list.size()); ++i) {
        const QString reason = reasonAgainst(list[i]);
        if (reason.isEmpty() && rule->origins.isEmpty())
            rule->origins.append(PxWhyRules::in(product.file(), elements[i]));
        else
            PxWhyRules::addLost(product.file(), *elements[i],
                                reason.isEmpty() ? "an earlier entry is used" : reason, rule);
    }
}

PxWhyRule surroundingRule(const PxWhyProduct &product, const Page &page)
{
    Elements elements;
    const PxSourceElement *element = product.file().element();
    for (const auto *list : element ? element->childrenNamed("surroundings") : Elements())
        elements += list->childrenNamed("surrounding");
    // The library has logged what cannot be read when it read the file.
    QVector<PxMessage> messages;
    const PxMessageKeeper keeper(&messages);
    const PxSurroundingDescriptionList surroundings(element ? element->dom : QDomElement());
    const PxSurroundingKey key(page.context, page.number);
    const PxSurroundingDescription answer = product.description().findSurrounding(key);
    PxWhyRule rule{"surrounding", true, {kindOf(page)}, {}, {}};
    if (answer.isValid())
        rule.given.json = answer.image();
    chooseFirst(
        product, elements, surroundings,
        [&](const PxSurroundingDescription &surrounding) -> QString {
            if (surrounding.isSuitable(key))
                return "";
            if (surrounding.pageNr() != -1)
                return QString("for page %1").arg(surrounding.pageNr());
            const bool isType = surrounding.pageTypes().matches(key.pageType().value());
            return isType ? "for other sides" : "for other page types";
        },
        &rule);
    return rule;
}

PxWhyRule barcodeRule(const PxWhyProduct &product, const Page &page)
{
    const Elements elements = product.file().entries("barcodes", "barcode");
    const PxBarcodeList barcodes(elements.isEmpty() ? QDomElement() : elements[0]->parent->dom);
    const PxBarcode answer = product.description().barcodeOnPage(page.number, page.pages);
    PxWhyRule rule{"barcode", true, {page.number}, {}, {}};
    if (answer.isValid())
        rule.given.json = answer.imageName();
    chooseFirst(
        product, elements, barcodes,
        [&page](const PxBarcode &barcode) {
            const qint64 number =
                barcode.reverseOrder() ? qint64(page.pages) - barcode.pageNr() : barcode.pageNr();
            return barcode.isOnPage(page.number, page.pages) ? QString()
                                                             : QString("for page %1").arg(number);
        },
        &rule);
    return rule;
}

} // namespace

PxWhyQuestion PxWhyQuestions::page(const PxWhyProduct &product, int number)
{
    const PxProductTypeDescription &description = product.description();
    const int pageCount = product.shown().pageCount;
    const PxPageTypeList pages = description.pageTypes(pageCount);
    const bool isPage = product.isDescribed() && number < pages.size();
    PxWhyQuestion question{QString("Has %1 a page %2, with %3 %4?")
                               .arg(product.name(), QString::number(number),
                                    QString::number(pageCount), pageCount == 1 ? "page" : "pages"),
                           isPage,
                           {PxWhyRules::file(product)}};
    question.rules.append(
        {"page",
         isPage,
         {number},
         {product.isDescribed() ? QString("0-%1").arg(pages.size() - 1) : QJsonValue()},
         {PxWhyRules::asked("page"), product.origin("/pages/printedPages")}});
    if (!question.answer)
        return question;
    const Page page{number, pages.size(), {pages[number], description.pageAlignment(number)}};
    const PxWhyTemplates templates(product, page.context);
    question.rules += QVector<PxWhyRule>{
        sizeRule(product, page), templates.rule("layout", DefaultTemplateTypeLayout),
        templates.rule("background", DefaultTemplateTypeBackground), surroundingRule(product, page),
        barcodeRule(product, page)};
    return question;
}
