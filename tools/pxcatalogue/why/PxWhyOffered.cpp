// The questions whether a product is offered at all, and with so many pages.

#include "report/PxCatalogueProducts.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"
#include "why/PxWhyRules.h"

namespace {

/** The entry for the page count: of several the last one, as in the library. Null without one. */
const PxSourceElement *spineOf(const PxWhyProduct &product, int pageCount)
{
    const PxSourceElement *found = nullptr;
    for (const PxSourceElement *spine : product.file().entries("spines", "spine")) {
        if (spine->number("pages") == pageCount)
            found = spine;
    }
    return found;
}

/** The page counts of the spine table, as 26-154/2. */
PxWhyValue stepsOf(const PxProductTypeDescription &book)
{
    const int step = book.pageIncrement();
    const QJsonObject steps{{"minimum", book.minPages()},
                            {"maximum", book.maxPages()},
                            {"increment", step > 0 ? QJsonValue(step) : QJsonValue()}};
    return {steps, PxReportFormat::PageCounts};
}

bool isStep(const PxProductTypeDescription &book, int pageCount)
{
    const qint64 more = qint64(pageCount) - book.minPages();
    return pageCount == book.minPages() || pageCount == book.maxPages() ||
           (book.pageIncrement() > 0 && more % book.pageIncrement() == 0);
}

QVector<PxWhyRule> rulesOfBook(const PxWhyProduct &product, int count)
{
    const PxProductTypeDescription &book = product.description();
    const bool hasTable = book.minPages() <= book.maxPages();
    const bool hasSpine = spineOf(product, count) || book.spineWidth(count) != 0;
    const auto orNone = [](bool isThere, const PxWhyValue &value) {
        return isThere ? value : PxWhyValue();
    };
    const auto place = [&product](int pageCount) {
        return PxWhyRules::in(product.file(), spineOf(product, pageCount), "pages");
    };
    const PxOrigin asked = PxWhyRules::asked("pages");
    // clang-format off
    QVector<PxWhyRule> rules{
        {"page-count-least", count >= book.minPages(), {count}, orNone(hasTable, {book.minPages()}), {asked, place(book.minPages())}},
        {"page-count-most", count <= book.maxPages(), {count}, orNone(hasTable, {book.maxPages()}), {asked, place(book.maxPages())}},
        {"page-count-step", isStep(book, count), {count}, orNone(hasTable, stepsOf(book)), {asked, product.origin("/pages/pageCounts")}},
    };
    if (book.hasSpine())
        rules.append({"page-count-spine", hasSpine, {count}, orNone(hasSpine, {book.spineWidth(count), PxReportFormat::Length}), {asked, product.origin("/spine/width")}});
    // clang-format on
    return rules;
}

PxWhyRule ruleOfOthers(const PxWhyProduct &product, int count)
{
    const auto rule = [&](int fixed, const char *pointer) {
        return PxWhyRule{"page-count-fixed",
                         count == fixed,
                         {count},
                         {fixed},
                         {PxWhyRules::asked("pages"), product.origin(pointer)}};
    };
    if (product.type().isCalendar())
        return rule(product.description().binding().calendarPageCount(), "/product/binding");
    if (product.type().isGift() || product.type().isCard() || product.type().isDeko())
        return rule(product.description().explicitNumberOfNormalPages(),
                    "/pages/explicitNumberOfNormalPages");
    return rule(1, "/product/class");
}

} // namespace

PxWhyQuestion PxWhyQuestions::offered(const PxWhyProduct &product)
{
    return {QString("Is %1 offered?").arg(product.name()),
            PxCatalogueProducts::isOffered(PxProductTypeConfigRegistry::instance(), product.type()),
            QVector<PxWhyRule>{PxWhyRules::catalogue(product)} + PxWhyRules::known(product)};
}

PxWhyQuestion PxWhyQuestions::pageCount(const PxWhyProduct &product, int count)
{
    PxWhyQuestion question = offered(product);
    question.text = QString("Is %1 offered with %2 %3?")
                        .arg(product.name(), QString::number(count), count == 1 ? "page" : "pages");
    question.answer = PxProductContext(product.type()).isPageCountOffered(count);
    constexpr int most = PxProductTypeDescription::maximumListedPages;
    question.rules.append({"page-count-limits",
                           count >= 1 && count <= most,
                           {count},
                           {QString("1-%1").arg(most)},
                           {PxWhyRules::asked("pages")}});
    if (product.type().productClass() == PxProductClassBook)
        question.rules += rulesOfBook(product, count);
    else
        question.rules.append(ruleOfOthers(product, count));
    return question;
}
