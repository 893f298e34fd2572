#include "check/themes/PxThemeElementCheck.h"

#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <PxProductType.h>
#include <PxXMLParser.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

const auto compactFormat = QLatin1String("yyyyMMddHHmm");

/** For a day or a time that does not exist; empty if both do, or are written in another form. */
QString impossibleTimeHint(const QString &text)
{
    static const QRegularExpression ourForms[] = {
        QRegularExpression("^(?<year>\\d{4})(-?)(?<month>\\d\\d)\\2(?<day>\\d\\d)"
                           "(?:[T ]?(?<hour>\\d\\d):?(?<minute>\\d\\d)(?::?\\d\\d)?)?$"),
        QRegularExpression("^(?<day>\\d\\d?)\\.(?<month>\\d\\d?)\\.(?<year>\\d{4})$"),
    };
    for (const QRegularExpression &form : ourForms) {
        const QRegularExpressionMatch match = form.match(text.trimmed());
        if (!match.hasMatch())
            continue;
        const int month = match.captured("month").toInt();
        const int days = QDate(match.captured("year").toInt(), month, 1).daysInMonth();
        const int day = match.captured("day").toInt();
        if (month < 1 || month > 12)
            return QString("there is no month %1").arg(month);
        if (day < 1 || day > days)
            return QString("there is no day %1 in that month, which has %2 days")
                .arg(day)
                .arg(days);
        if (match.captured("hour").toInt() > 23 || match.captured("minute").toInt() > 59)
            return "hours go to 23, and minutes to 59";
    }
    return QString();
}

/** Converts forms that authors use elsewhere. */
QString expiryHint(const QString &text)
{
    const QString impossible = impossibleTimeHint(text);
    if (!impossible.isEmpty())
        return impossible;
    const QDateTime withSeconds = QDateTime::fromString(text.trimmed(), "yyyyMMddHHmmss");
    QString meant = withSeconds.toString(compactFormat);
    for (const char *format : {"yyyyMMdd", "dd.MM.yyyy", "d.M.yyyy"}) {
        const QDate day = QDate::fromString(text.trimmed(), QLatin1String(format));
        if (day.isValid())
            meant = day.endOfDay().toString(compactFormat);
    }
    return meant.isEmpty() ? "write year to minute, as in \"205012312359\""
                           : PxSpelling::didYouMean(meant);
}

constexpr const char *allowedForAll = "the theme is allowed for every product";

/** A hint for an unknown name. */
QString productHint(const PxSourceElement &product, PxListedProductTypes &types)
{
    const QString name = product.dom.text();
    return name.contains(QLatin1Char(',')) ? "write a \"product\" element for each"
                                           : types.hint(name);
}

QString unknownText(const PxSourceElement &product)
{
    const QString name = product.dom.text().trimmed();
    return name.isEmpty() ? "the name of the product is empty"
                          : QString("\"%1\" is no known product name").arg(name);
}

} // namespace

PxThemeElementCheck::PxThemeElementCheck(const PxSourceElement &theme, PxListedProductTypes &types,
                                         const PxReporter &report)
    : m_theme(theme)
    , m_types(types)
    , m_report(report)
    , m_expiry(PxXMLParser::dateTimeAttribute(theme.dom, "expiry", QString()))
    , m_isExpired(m_expiry.isValid() && m_expiry < QDateTime::currentDateTime())
    , m_products(namedProducts())
{}

void PxThemeElementCheck::run()
{
    checkExpiry();
    checkKeyAccounts();
    checkProducts();
    if (const PxSourceElement *logos = m_theme.firstChild("logos")) {
        for (const PxSourceElement *logo : logos->children) { // whatever they are called
            checkLogoProduct(*logo);
            checkLogoPlace(*logo);
        }
    }
}

void PxThemeElementCheck::checkExpiry() const
{
    static const QRegularExpression ourDay("^\\d{4}-\\d\\d-\\d\\d$");
    const QString text = m_theme.value("expiry");
    const PxSourceRange range = m_theme.rangeOf("expiry");
    if (text.trimmed().isEmpty())
        return;
    if (!m_expiry.isValid())
        m_report.add(PxTag::ThemeExpiryMalformed, range, "\"%1\" is no date and time", text)
            .now("the theme has expired, it is never offered")
            .hint([&] { return expiryHint(text); });
    else if (m_isExpired)
        m_report
            .add(PxTag::ThemeExpiryPast, range, "the theme expired on %1",
                 m_expiry.toString("yyyy-MM-dd 'at' HH:mm"))
            .now("it is not offered any more");
    else if (ourDay.match(text.trimmed()).hasMatch())
        m_report.add(PxTag::ThemeExpiryDay, range, "\"%1\" is a day without a time", text)
            .now("the theme expires when the day begins, at %1", m_expiry.toString("HH:mm"))
            .hint("write \"%1\" to include the day",
                  m_expiry.date().endOfDay().toString(compactFormat));
}

void PxThemeElementCheck::checkKeyAccounts() const
{
    const PxSourceElement *accounts = m_theme.firstChild("keyaccounts");
    if (!accounts || !accounts->dom.hasChildNodes()) {
        const PxMissingPart missing = missingChild(accounts, "keyaccounts");
        if (!m_isExpired) // nobody is offered it then anyway
            m_report
                .add(PxTag::ThemeForNobody, missing.range,
                     accounts ? "\"keyaccounts\" names no key account"
                              : "the theme has no \"keyaccounts\"")
                .now("the theme is offered to nobody")
                .hint(missing.hint);
        return;
    }
    for (const PxSourceNode &node : accounts->nodes) {
        if (node.isBlank())
            continue;
        m_report
            .add(PxTag::ThemeKeyAccountMalformed, node.range, "%1 directly in \"keyaccounts\"",
                 PxSourceNode::kindText(node.kind))
            .now("it counts as key account 0")
            .hint(node.isText() ? "write an element for each key account"
                                : "move it out of \"keyaccounts\"");
    }
}

void PxThemeElementCheck::checkProducts() const
{
    const PxSourceElement *products = m_theme.firstChild("products");
    const bool isAnyThere = products && products->firstChild("product");
    if (!isAnyThere)
        checkMissingProducts(products);
    if (!isAnyThere || m_types.isEmpty())
        return;
    QVector<const PxSourceElement *> unknown;
    bool isAnyKnown = false;
    for (const PxSourceElement *product : products->childrenNamed("product")) {
        const QString name = product->dom.text();
        if (PxProductType(name).isValid() || m_types.isListed(name))
            isAnyKnown = true;
        else
            unknown.append(product);
    }
    if (isAnyKnown)
        addUnknownProducts(unknown);
    else
        addOnlyUnknownProducts(*products, unknown);
}

void PxThemeElementCheck::addUnknownProducts(const QVector<const PxSourceElement *> &unknown) const
{
    for (const PxSourceElement *product : unknown) {
        const PxMissingPart text = PxElementReading(*product, PxFileKind::Theme).missingText();
        m_report.add(PxTag::ThemeProductUnknown, text.range, unknownText(*product))
            .now("it is left out")
            .hint([&] { return text.hintOr(productHint(*product, m_types)); });
    }
}

void PxThemeElementCheck::addOnlyUnknownProducts(
    const PxSourceElement &products, const QVector<const PxSourceElement *> &unknown) const
{
    const PxSourceElement &first = *unknown.constFirst();
    const PxMissingPart text = PxElementReading(first, PxFileKind::Theme).missingText();
    m_report
        .add(PxTag::ThemeProductsAllUnknown, text.hint.isEmpty() ? products.nameRange : text.range,
             unknown.size() == 1 ? "%1, and no other is there"
                                 : "none of %2 names is a known product name",
             unknownText(first), unknown.size())
        .now(allowedForAll)
        .hint([&] { return text.hintOr(productHint(first, m_types)); });
}

/** Reports names of products at a place where the library does not read them. */
void PxThemeElementCheck::checkMissingProducts(const PxSourceElement *products) const
{
    const PxMissingPart missing =
        products ? PxElementReading(*products, PxFileKind::Theme).missingEntries()
                 : PxElementReading(m_theme, PxFileKind::Theme).missingChild("products");
    if (missing.hint.isEmpty())
        return; // the theme is for all products
    m_report
        .add(PxTag::ThemeProductsAllUnknown, missing.range,
             products ? "no \"product\" in the \"products\" of the theme"
                      : "the theme has no \"products\"")
        .now(allowedForAll)
        .hint(missing.hint);
}

/** The products that the theme is for, sorted; empty for all, and if one of them is unknown. */
PxProductTypeList PxThemeElementCheck::namedProducts() const
{
    PxProductTypeList types;
    if (const PxSourceElement *products = m_theme.firstChild("products")) {
        for (const PxSourceElement *product : products->childrenNamed("product")) {
            const PxProductType type(product->dom.text());
            if (!type.isValid())
                return {};
            types.append(type);
        }
    }
    std::sort(types.begin(), types.end());
    return types;
}

void PxThemeElementCheck::checkLogoProduct(const PxSourceElement &logo) const
{
    constexpr const char *booktype = "booktype";
    const QString name = logo.value(booktype);
    const PxProductType type(name.toUpper());
    if (type.isValid()) {
        if (!m_products.isEmpty() &&
            !std::binary_search(m_products.begin(), m_products.end(), type))
            m_report
                .add(PxTag::ThemeLogoNotAllowed, logo.rangeOf(booktype),
                     "%1 is not among the products of the theme", type.productName())
                .now("the theme is not for this product, so nobody sees the logo");
    } else if (!name.trimmed().isEmpty() && !m_types.isEmpty() && !m_types.isListed(name)) {
        m_report
            .add(PxTag::ThemeLogoProductUnknown, logo.rangeOf(booktype),
                 "\"%1\" is no known product name", name)
            .now("the logo belongs to no product")
            .hint([&] { return m_types.hint(name); });
    }
}

void PxThemeElementCheck::checkLogoPlace(const PxSourceElement &logo) const
{
    const QRect rect = PxXMLParser::readRect(logo.dom);
    if (!rect.isEmpty())
        return;
    const PxElementReading reading(logo, PxFileKind::Theme);
    if (!reading.isReadable("width") || !reading.isReadable("height"))
        return; // no number: the check of the value reports it
    const QStringList missing = reading.missingOf({"width", "height"});
    if (missing.isEmpty()) {
        const char *culprit =
            reading.number("width") > 0 && reading.number("height") <= 0 ? "height" : "width";
        m_report
            .add(PxTag::ThemeLogoWithoutPlace, logo.rangeOf(culprit),
                 "the place of the logo is empty or too far out")
            .now("it is %1 x %2 large", rect.width(), rect.height());
        return;
    }
    const PxMissingPart side = reading.missing(qPrintable(missing.constFirst()));
    m_report
        .add(PxTag::ThemeLogoWithoutPlace, side.range, "the logo has no %1",
             PxMessageText::quotedList(missing, " and no "))
        .now("it has no place")
        .hint(side.hint);
}

PxMissingPart PxThemeElementCheck::missingChild(const PxSourceElement *child,
                                                const char *name) const
{
    return child ? PxMissingPart{child->nameRange, QString()}
                 : PxElementReading(m_theme, PxFileKind::Theme).missingChild(name);
}
