// The questions about a product that is designed in a theme.

#include "report/PxCatalogueProducts.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"
#include "why/PxWhyRules.h"

#include <QDateTime>

namespace {

constexpr int minutes = 16; // characters of a time before its seconds

/** The entry of a list in the theme that has this meaning, else the list, else the theme. */
template <typename IS_WANTED>
PxOrigin entryOf(const PxWhyProduct &product, const char *list, IS_WANTED isWanted)
{
    const PxSourceElement *theme = product.theme().element();
    const PxSourceElement *found = theme ? theme->firstChild(list) : nullptr;
    for (const PxSourceElement *entry :
         found ? found->children : QVector<const PxSourceElement *>()) {
        if (isWanted(entry->dom.text()))
            return PxWhyRules::in(product.theme(), entry);
    }
    return PxWhyRules::in(product.theme(), found ? found : theme);
}

PxWhyRule allowed(const PxWhyProduct &product, const PxTheme &theme)
{
    const auto products = theme.allowedProductTypes();
    return {"theme-product",
            products.sharesKey(product.type()),
            {product.name()},
            {PxCatalogueProducts::nameArray(products.values()), PxReportFormat::CountOrAll},
            {entryOf(product, "products",
                     [&](const QString &text) { return PxProductType(text) == product.type(); })}};
}

PxWhyRule notExpired(const PxWhyProduct &product, const PxTheme &theme)
{
    PxOrigin clock;
    clock.kind = PxOrigin::Kind::Clock;
    const auto time = [](const QDateTime &moment) {
        return moment.toLocalTime().toString(Qt::ISODate).left(minutes);
    };
    return {"theme-expiry",
            !theme.isExpired(),
            {time(QDateTime::currentDateTime())},
            {time(theme.expiryDate())},
            {clock, PxWhyRules::in(product.theme(), product.theme().element(), "expiry")}};
}

} // namespace

PxWhyQuestion PxWhyQuestions::theme(const PxWhyProduct &product, const PxTheme &theme)
{
    return {QString("May %1 be designed in the theme %2 now?").arg(product.name(), theme.id()),
            product.isCurrent() && PxProductContext(product.type(), theme).isValid() &&
                !theme.isExpired(),
            {PxWhyRules::catalogue(product), allowed(product, theme), notExpired(product, theme)}};
}

PxWhyQuestion PxWhyQuestions::keyAccount(const PxWhyProduct &product, const PxTheme &theme,
                                         int number)
{
    PxWhyQuestion question = offered(product);
    question.text = QString("May key account %1 order %2 in the theme %3 now?")
                        .arg(QString::number(number), product.name(), theme.id());
    question.answer = question.answer && !PxThemeList(theme).filter(number, true).isEmpty() &&
                      PxProductContext(product.type(), theme).isValid();
    question.rules += QVector<PxWhyRule>{
        {"theme-key-account",
         theme.isValidForKeyAccount(number),
         {number},
         {PxReportValue::numbers(theme.keyAccounts())},
         {PxWhyRules::asked("key-account"),
          entryOf(product, "keyaccounts",
                  [number](const QString &text) { return text.toInt() == number; })}},
        notExpired(product, theme),
        allowed(product, theme)};
    return question;
}
