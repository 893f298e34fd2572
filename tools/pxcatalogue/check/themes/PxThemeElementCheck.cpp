#include "check/themes/PxThemeElementCheck.h"

#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <PxProductGroup.h>
#include <PxProductType.h>
#include <PxXMLParser.h>

#include <QRegularExpression>

namespace {

const auto compactFormat = QLatin1String("yyyyMMddHHmm");

/** Nearly the right form, for those that authors use elsewhere. */
QString expiryHint(const QString &text)
{
    const QDateTime withSeconds =
        QDateTime::fromString(text.trimmed(), QStringLiteral("yyyyMMddHHmmss"));
    QString meant = withSeconds.toString(compactFormat);
    for (const char *format : {"yyyyMMdd", "dd.MM.yyyy", "d.M.yyyy"}) {
        const QDate day = QDate::fromString(text.trimmed(), QLatin1String(format));
        if (day.isValid())
            meant = day.endOfDay().toString(compactFormat);
    }
    return meant.isEmpty() ? QStringLiteral("write year to minute, as in \"205012312359\"")
                           : PxSpelling::didYouMean(meant);
}

/** For a name that is no known one. */
QString productHint(const QString &name, PxListedProductTypes &types)
{
    return name.contains(QLatin1Char(',')) ? QStringLiteral("write a \"product\" element for each")
                                           : types.hint(name);
}

QString unknownText(const PxSourceElement &product)
{
    const QString name = product.dom.text().trimmed();
    return name.isEmpty() ? QStringLiteral("the name of the product is empty")
                          : QStringLiteral("\"%1\" is no known product name").arg(name);
}

} // namespace

PxThemeElementCheck::PxThemeElementCheck(const PxSourceElement &theme, PxListedProductTypes &types,
                                         const PxReporter &report)
    : m_theme(theme)
    , m_types(types)
    , m_report(report)
    , m_expiry(PxXMLParser::dateTimeAttribute(theme.dom, QStringLiteral("expiry"), QString()))
    , m_isExpired(m_expiry.isValid() && m_expiry < QDateTime::currentDateTime())
{}

void PxThemeElementCheck::run()
{
    checkId();
    checkGroup();
    checkExpiry();
    checkDescription();
    checkKeyAccounts();
    checkProducts();
}

void PxThemeElementCheck::checkId() const
{
    const QString id = m_theme.value(QStringLiteral("id"));
    const PxSourceRange range = m_theme.rangeOf(QStringLiteral("id"));
    if (id.isEmpty()) {
        const bool isThere = m_theme.attribute(QStringLiteral("id"));
        const PxMissingPart missing =
            PxElementReading(m_theme, PxFileKind::Theme).missing(QStringLiteral("id"));
        m_report
            .add(PxTag::ThemeIdMissing, missing.range,
                 isThere ? QStringLiteral("the \"id\" of the theme is empty")
                         : QStringLiteral("the theme has no \"id\""))
            .now(QStringLiteral("its id is \"%1\"")
                     .arg(isThere ? QString() : QStringLiteral("unbekannt")))
            .hint(missing.hint);
    } else if (id.contains(QLatin1Char(','))) {
        m_report
            .add(PxTag::ThemeIdUnlistable, range,
                 QStringLiteral("the id \"%1\" holds a comma").arg(id))
            .now(QStringLiteral("no list of ids finds the theme"));
    } else if (id != id.trimmed()) {
        m_report
            .add(PxTag::ThemeIdUnlistable, range,
                 QStringLiteral("the id \"%1\" begins or ends with a blank").arg(id))
            .now(QStringLiteral("the blank belongs to the id"))
            .hint(QStringLiteral("write \"%1\"").arg(id.trimmed().toLower()));
    }
    if (id != id.toLower())
        m_report
            .add(PxTag::ThemeIdLowered, range,
                 QStringLiteral("the id \"%1\" has upper-case letters").arg(id))
            .now(QStringLiteral("the id is \"%1\"").arg(id.toLower()));
}

void PxThemeElementCheck::checkGroup() const
{
    const QString attribute = QStringLiteral("producttype");
    const QString group = m_theme.value(attribute);
    const QString now = QStringLiteral("the theme is not valid");
    if (group.trimmed().isEmpty()) {
        const PxMissingPart missing =
            PxElementReading(m_theme, PxFileKind::Theme).missing(attribute);
        m_report
            .add(PxTag::ThemeGroupMissing, missing.range,
                 m_theme.attribute(attribute)
                     ? QStringLiteral("the \"producttype\" of the theme is empty")
                     : QStringLiteral("the theme has no \"producttype\""))
            .now(now)
            .hint(missing.hintOr(QStringLiteral("name the product group, as in \"book\"")));
    } else if (!PxProductGroup(group).isValid()) {
        m_report
            .add(PxTag::ThemeGroupUnknown, m_theme.rangeOf(attribute),
                 QStringLiteral("\"%1\" is no product group").arg(group))
            .now(now)
            .hint([&] {
                return group.contains(QLatin1Char(','))
                           ? QStringLiteral("name one product group only")
                           : PxSpelling::hint(group,
                                              PxFormat::keywordNames(PxKeywordSet::ProductGroup));
            });
    }
}

void PxThemeElementCheck::checkExpiry() const
{
    static const QRegularExpression ourDay(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d$"));
    const QString text = m_theme.value(QStringLiteral("expiry"));
    const PxSourceRange range = m_theme.rangeOf(QStringLiteral("expiry"));
    const PxMissingPart missing =
        PxElementReading(m_theme, PxFileKind::Theme).missing(QStringLiteral("expiry"));
    const QString now = QStringLiteral("the theme has expired, it is never offered");
    if (text.trimmed().isEmpty())
        m_report
            .add(PxTag::ThemeExpiryMissing, missing.range,
                 m_theme.attribute(QStringLiteral("expiry"))
                     ? QStringLiteral("the \"expiry\" of the theme is empty")
                     : QStringLiteral("the theme has no \"expiry\""))
            .now(now)
            .hint(missing.hintOr(QStringLiteral("write year to minute, as in \"205012312359\"")));
    else if (!m_expiry.isValid())
        m_report
            .add(PxTag::ThemeExpiryMalformed, range,
                 QStringLiteral("\"%1\" is no date and time").arg(text))
            .now(now)
            .hint([&] { return expiryHint(text); });
    else if (m_isExpired)
        m_report
            .add(PxTag::ThemeExpiryPast, range,
                 QStringLiteral("the theme expired on %1")
                     .arg(m_expiry.toString(QStringLiteral("yyyy-MM-dd 'at' HH:mm"))))
            .now(QStringLiteral("it is not offered any more"));
    else if (ourDay.match(text.trimmed()).hasMatch())
        m_report
            .add(PxTag::ThemeExpiryDay, range,
                 QStringLiteral("\"%1\" is a day without a time").arg(text))
            .now(QStringLiteral("the theme expires when the day begins, at %1")
                     .arg(m_expiry.toString(QStringLiteral("HH:mm"))))
            .hint(QStringLiteral("write \"%1\" to include the day")
                      .arg(m_expiry.date().endOfDay().toString(compactFormat)));
}

void PxThemeElementCheck::checkDescription() const
{
    const PxSourceElement *description = m_theme.firstChild(QStringLiteral("description"));
    if (description && !description->dom.text().trimmed().isEmpty())
        return;
    const PxMissingPart missing =
        description ? PxElementReading(*description, PxFileKind::Theme).missingText()
                    : missingChild(description, QStringLiteral("description"));
    m_report
        .add(PxTag::ThemeDescriptionMissing, missing.range,
             description ? QStringLiteral("the \"description\" of the theme is empty")
                         : QStringLiteral("the theme has no \"description\""))
        .now(QStringLiteral("it is shown as \"%1\"")
                 .arg(description ? QString() : QStringLiteral("unbekannt")))
        .hint(missing.hint);
}

void PxThemeElementCheck::checkKeyAccounts() const
{
    const PxSourceElement *accounts = m_theme.firstChild(QStringLiteral("keyaccounts"));
    if (!accounts || !accounts->dom.hasChildNodes()) {
        const PxMissingPart missing = missingChild(accounts, QStringLiteral("keyaccounts"));
        if (!m_isExpired) // nobody is offered it then anyway
            m_report
                .add(PxTag::ThemeForNobody, missing.range,
                     accounts ? QStringLiteral("\"keyaccounts\" names no key account")
                              : QStringLiteral("the theme has no \"keyaccounts\""))
                .now(QStringLiteral("the theme is offered to nobody"))
                .hint(missing.hint);
        return;
    }
    for (const PxSourceElement *account : accounts->children)
        checkKeyAccount(*account);
    for (const PxSourceNode &node : accounts->nodes) {
        if (node.isBlank())
            continue;
        m_report
            .add(PxTag::ThemeKeyAccountMalformed, node.range,
                 QStringLiteral("%1 directly in \"keyaccounts\"")
                     .arg(PxSourceNode::kindText(node.kind)))
            .now(QStringLiteral("it counts as key account 0"))
            .hint(node.isText() ? QStringLiteral("write an element for each key account")
                                : QStringLiteral("move it out of \"keyaccounts\""));
    }
}

void PxThemeElementCheck::checkKeyAccount(const PxSourceElement &account) const
{
    const QString text = account.dom.text();
    bool isNumber = false;
    text.toInt(&isNumber);
    if (isNumber)
        return;
    const PxMissingPart missing = PxElementReading(account, PxFileKind::Theme).missingText();
    m_report
        .add(PxTag::ThemeKeyAccountMalformed, missing.range,
             text.trimmed().isEmpty()
                 ? QStringLiteral("the key account is empty")
                 : QStringLiteral("\"%1\" is no number of a key account").arg(text.trimmed()))
        .now(QStringLiteral("it counts as key account 0"))
        .hint(text.contains(QLatin1Char(','))
                  ? QStringLiteral("write an element for each key account")
                  : missing.hint);
}

void PxThemeElementCheck::checkProducts() const
{
    const PxSourceElement *products = m_theme.firstChild(QStringLiteral("products"));
    const bool isAnyThere = products && products->firstChild(QStringLiteral("product"));
    if (!isAnyThere)
        checkMissingProducts(products);
    if (!isAnyThere || m_types.isEmpty())
        return;
    QVector<const PxSourceElement *> unknown;
    bool isAnyKnown = false;
    for (const PxSourceElement *product : products->childrenNamed(QStringLiteral("product"))) {
        const QString name = product->dom.text();
        if (PxProductType(name).isValid() || m_types.isListed(name))
            isAnyKnown = true;
        else
            unknown.append(product);
    }
    const auto textOf = [](const PxSourceElement &product) {
        return PxElementReading(product, PxFileKind::Theme).missingText();
    };
    if (!unknown.isEmpty() && !isAnyKnown) {
        constexpr PxTag tag = PxTag::ThemeProductsAllUnknown;
        const PxMissingPart text = textOf(*unknown.constFirst());
        m_report
            .add(tag, text.hint.isEmpty() ? products->nameRange : text.range,
                 unknown.size() == 1 ? QStringLiteral("%1, and no other is there")
                                           .arg(unknownText(*unknown.constFirst()))
                                     : QStringLiteral("none of %1 names is a known product name")
                                           .arg(unknown.size()))
            .now(QStringLiteral("the theme is allowed for every product"))
            .hint([&] {
                return text.hintOr(productHint(unknown.constFirst()->dom.text(), m_types));
            });
        return;
    }
    for (const PxSourceElement *product : unknown) {
        constexpr PxTag tag = PxTag::ThemeProductUnknown;
        const PxMissingPart text = textOf(*product);
        m_report.add(tag, text.range, unknownText(*product))
            .now(QStringLiteral("it is left out"))
            .hint([&] { return text.hintOr(productHint(product->dom.text(), m_types)); });
    }
}

/** Names of products that are not where they are read. */
void PxThemeElementCheck::checkMissingProducts(const PxSourceElement *products) const
{
    const PxMissingPart missing =
        products
            ? PxElementReading(*products, PxFileKind::Theme).missingEntries()
            : PxElementReading(m_theme, PxFileKind::Theme).missingChild(QStringLiteral("products"));
    if (missing.hint.isEmpty())
        return; // every product is meant
    m_report
        .add(PxTag::ThemeProductsAllUnknown, missing.range,
             products ? QStringLiteral("no \"product\" in the \"products\" of the theme")
                      : QStringLiteral("the theme has no \"products\""))
        .now(QStringLiteral("the theme is allowed for every product"))
        .hint(missing.hint);
}

PxMissingPart PxThemeElementCheck::missingChild(const PxSourceElement *child,
                                                const QString &name) const
{
    return child ? PxMissingPart{child->nameRange, QString()}
                 : PxElementReading(m_theme, PxFileKind::Theme).missingChild(name);
}
