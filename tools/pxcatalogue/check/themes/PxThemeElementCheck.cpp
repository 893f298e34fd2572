#include "check/themes/PxThemeElementCheck.h"

#include "check/words/PxListedProductTypes.h"
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
QString productHint(const QString &name)
{
    return name.contains(QLatin1Char(',')) ? QStringLiteral("write a \"product\" element for each")
                                           : PxListedProductTypes::instance().hint(name);
}

QString unknownText(const PxSourceElement &product)
{
    const QString name = product.dom.text().trimmed();
    return name.isEmpty() ? QStringLiteral("the name of the product is empty")
                          : QStringLiteral("\"%1\" is no known product name").arg(name);
}

} // namespace

PxThemeElementCheck::PxThemeElementCheck(const PxCheckedFile &file, const PxSourceElement &theme)
    : m_file(file)
    , m_theme(theme)
    , m_expiry(PxXMLParser::dateTimeAttribute(theme.dom, QStringLiteral("expiry"), QString()))
    , m_isExpired(m_expiry.isValid() && m_expiry < QDateTime::currentDateTime())
{}

void PxThemeElementCheck::run(PxFindings *findings) const
{
    checkId(findings);
    checkGroup(findings);
    checkExpiry(findings);
    checkDescription(findings);
    checkKeyAccounts(findings);
    checkProducts(findings);
}

void PxThemeElementCheck::checkId(PxFindings *findings) const
{
    const QString id = m_theme.value(QStringLiteral("id"));
    const PxSourceRange range = m_theme.rangeOf(QStringLiteral("id"));
    if (id.isEmpty()) {
        const bool isThere = m_theme.attribute(QStringLiteral("id"));
        const PxMissingPart missing =
            PxElementReading(m_theme, PxFileKind::Theme).missing(QStringLiteral("id"));
        m_file.add(findings, "theme-id-missing", missing.range,
                   isThere ? QStringLiteral("the \"id\" of the theme is empty")
                           : QStringLiteral("the theme has no \"id\""),
                   QStringLiteral("its id is \"%1\"")
                       .arg(isThere ? QString() : QStringLiteral("unbekannt")),
                   missing.hint);
    } else if (id.contains(QLatin1Char(','))) {
        m_file.add(findings, "theme-id-unlistable", range,
                   QStringLiteral("the id \"%1\" holds a comma").arg(id),
                   QStringLiteral("no list of ids finds the theme"));
    } else if (id != id.trimmed()) {
        m_file.add(findings, "theme-id-unlistable", range,
                   QStringLiteral("the id \"%1\" begins or ends with a blank").arg(id),
                   QStringLiteral("the blank belongs to the id"),
                   QStringLiteral("write \"%1\"").arg(id.trimmed().toLower()));
    }
    if (id != id.toLower())
        m_file.add(findings, "theme-id-lowered", range,
                   QStringLiteral("the id \"%1\" has upper-case letters").arg(id),
                   QStringLiteral("the id is \"%1\"").arg(id.toLower()));
}

void PxThemeElementCheck::checkGroup(PxFindings *findings) const
{
    const QString attribute = QStringLiteral("producttype");
    const QString group = m_theme.value(attribute);
    const QString now = QStringLiteral("the theme is not valid");
    if (group.trimmed().isEmpty()) {
        const PxMissingPart missing =
            PxElementReading(m_theme, PxFileKind::Theme).missing(attribute);
        m_file.add(findings, "theme-group-missing", missing.range,
                   m_theme.attribute(attribute)
                       ? QStringLiteral("the \"producttype\" of the theme is empty")
                       : QStringLiteral("the theme has no \"producttype\""),
                   now, missing.hintOr(QStringLiteral("name the product group, as in \"book\"")));
    } else if (!PxProductGroup(group).isValid()) {
        constexpr const char *tag = "theme-group-unknown";
        QString hint;
        if (group.contains(QLatin1Char(',')))
            hint = QStringLiteral("name one product group only");
        else if (m_file.isTold(findings, tag, m_theme.rangeOf(attribute)))
            hint = PxSpelling::hint(group, PxFormat::keywordNames(PxKeywordSet::ProductGroup));
        m_file.add(findings, tag, m_theme.rangeOf(attribute),
                   QStringLiteral("\"%1\" is no product group").arg(group), now, hint);
    }
}

void PxThemeElementCheck::checkExpiry(PxFindings *findings) const
{
    static const QRegularExpression ourDay(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d$"));
    const QString text = m_theme.value(QStringLiteral("expiry"));
    const PxSourceRange range = m_theme.rangeOf(QStringLiteral("expiry"));
    const PxMissingPart missing =
        PxElementReading(m_theme, PxFileKind::Theme).missing(QStringLiteral("expiry"));
    const QString now = QStringLiteral("the theme has expired, it is never offered");
    if (text.trimmed().isEmpty())
        m_file.add(findings, "theme-expiry-missing", missing.range,
                   m_theme.attribute(QStringLiteral("expiry"))
                       ? QStringLiteral("the \"expiry\" of the theme is empty")
                       : QStringLiteral("the theme has no \"expiry\""),
                   now,
                   missing.hintOr(QStringLiteral("write year to minute, as in \"205012312359\"")));
    else if (!m_expiry.isValid())
        m_file.add(findings, "theme-expiry-malformed", range,
                   QStringLiteral("\"%1\" is no date and time").arg(text), now,
                   m_file.isTold(findings, "theme-expiry-malformed", range) ? expiryHint(text)
                                                                            : QString());
    else if (m_isExpired)
        m_file.add(findings, "theme-expiry-past", range,
                   QStringLiteral("the theme expired on %1")
                       .arg(m_expiry.toString(QStringLiteral("yyyy-MM-dd 'at' HH:mm"))),
                   QStringLiteral("it is not offered any more"));
    else if (ourDay.match(text.trimmed()).hasMatch())
        m_file.add(findings, "theme-expiry-day", range,
                   QStringLiteral("\"%1\" is a day without a time").arg(text),
                   QStringLiteral("the theme expires when the day begins, at %1")
                       .arg(m_expiry.toString(QStringLiteral("HH:mm"))),
                   QStringLiteral("write \"%1\" to include the day")
                       .arg(m_expiry.date().endOfDay().toString(compactFormat)));
}

void PxThemeElementCheck::checkDescription(PxFindings *findings) const
{
    const PxSourceElement *description = m_theme.firstChild(QStringLiteral("description"));
    if (description && !description->dom.text().trimmed().isEmpty())
        return;
    const PxMissingPart missing =
        description ? PxElementReading(*description, PxFileKind::Theme).missingText()
                    : missingChild(description, QStringLiteral("description"));
    m_file.add(findings, "theme-description-missing", missing.range,
               description ? QStringLiteral("the \"description\" of the theme is empty")
                           : QStringLiteral("the theme has no \"description\""),
               QStringLiteral("it is shown as \"%1\"")
                   .arg(description ? QString() : QStringLiteral("unbekannt")),
               missing.hint);
}

void PxThemeElementCheck::checkKeyAccounts(PxFindings *findings) const
{
    const PxSourceElement *accounts = m_theme.firstChild(QStringLiteral("keyaccounts"));
    if (!accounts || !accounts->dom.hasChildNodes()) {
        const PxMissingPart missing = missingChild(accounts, QStringLiteral("keyaccounts"));
        if (!m_isExpired) // nobody is offered it then anyway
            m_file.add(findings, "theme-for-nobody", missing.range,
                       accounts ? QStringLiteral("\"keyaccounts\" names no key account")
                                : QStringLiteral("the theme has no \"keyaccounts\""),
                       QStringLiteral("the theme is offered to nobody"), missing.hint);
        return;
    }
    for (const PxSourceElement *account : accounts->children)
        checkKeyAccount(*account, findings);
    for (const PxSourceNode &node : accounts->nodes) {
        if (node.isBlank())
            continue;
        m_file.add(
            findings, "theme-key-account-malformed", node.range,
            QStringLiteral("%1 directly in \"keyaccounts\"").arg(PxMessageText::kind(node.kind)),
            QStringLiteral("it counts as key account 0"),
            node.isText() ? QStringLiteral("write an element for each key account")
                          : QStringLiteral("move it out of \"keyaccounts\""));
    }
}

void PxThemeElementCheck::checkKeyAccount(const PxSourceElement &account,
                                          PxFindings *findings) const
{
    const QString text = account.dom.text();
    bool isNumber = false;
    text.toInt(&isNumber);
    if (isNumber)
        return;
    const PxMissingPart missing = PxElementReading(account, PxFileKind::Theme).missingText();
    m_file.add(findings, "theme-key-account-malformed", missing.range,
               text.trimmed().isEmpty()
                   ? QStringLiteral("the key account is empty")
                   : QStringLiteral("\"%1\" is no number of a key account").arg(text.trimmed()),
               QStringLiteral("it counts as key account 0"),
               text.contains(QLatin1Char(','))
                   ? QStringLiteral("write an element for each key account")
                   : missing.hint);
}

void PxThemeElementCheck::checkProducts(PxFindings *findings) const
{
    PxListedProductTypes &types = PxListedProductTypes::instance();
    const PxSourceElement *products = m_theme.firstChild(QStringLiteral("products"));
    const bool isAnyThere = products && products->firstChild(QStringLiteral("product"));
    if (!isAnyThere)
        checkMissingProducts(products, findings);
    if (!isAnyThere || types.isEmpty())
        return;
    QVector<const PxSourceElement *> unknown;
    bool isAnyKnown = false;
    for (const PxSourceElement *product : products->childrenNamed(QStringLiteral("product"))) {
        const QString name = product->dom.text();
        if (PxProductType(name).isValid() || types.isListed(name))
            isAnyKnown = true;
        else
            unknown.append(product);
    }
    const auto textOf = [](const PxSourceElement &product) {
        return PxElementReading(product, PxFileKind::Theme).missingText();
    };
    if (!unknown.isEmpty() && !isAnyKnown) {
        constexpr const char *tag = "theme-products-all-unknown";
        const PxMissingPart text = textOf(*unknown.constFirst());
        m_file.add(
            findings, tag, text.hint.isEmpty() ? products->nameRange : text.range,
            unknown.size() == 1
                ? QStringLiteral("%1, and no other is there")
                      .arg(unknownText(*unknown.constFirst()))
                : QStringLiteral("none of %1 names is a known product name").arg(unknown.size()),
            QStringLiteral("the theme is allowed for every product"),
            m_file.isTold(findings, tag, text.range)
                ? text.hintOr(productHint(unknown.constFirst()->dom.text()))
                : QString());
        return;
    }
    for (const PxSourceElement *product : unknown) {
        constexpr const char *tag = "theme-product-unknown";
        const PxMissingPart text = textOf(*product);
        m_file.add(
            findings, tag, text.range, unknownText(*product), QStringLiteral("it is left out"),
            m_file.isTold(findings, tag, text.range) ? text.hintOr(productHint(product->dom.text()))
                                                     : QString());
    }
}

/** Names of products that are not where they are read. */
void PxThemeElementCheck::checkMissingProducts(const PxSourceElement *products,
                                               PxFindings *findings) const
{
    const PxMissingPart missing =
        products
            ? PxElementReading(*products, PxFileKind::Theme).missingEntries()
            : PxElementReading(m_theme, PxFileKind::Theme).missingChild(QStringLiteral("products"));
    if (missing.hint.isEmpty())
        return; // every product is meant
    m_file.add(findings, "theme-products-all-unknown", missing.range,
               products ? QStringLiteral("no \"product\" in the \"products\" of the theme")
                        : QStringLiteral("the theme has no \"products\""),
               QStringLiteral("the theme is allowed for every product"), missing.hint);
}

PxMissingPart PxThemeElementCheck::missingChild(const PxSourceElement *child,
                                                const QString &name) const
{
    return child ? PxMissingPart{child->nameRange, QString()}
                 : PxElementReading(m_theme, PxFileKind::Theme).missingChild(name);
}
