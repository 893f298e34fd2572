#include "check/themes/PxThemeLogoCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/themes/PxThemeImageCheck.h"
#include "check/words/PxListedProductTypes.h"
#include "check/words/PxMessageText.h"

#include <PxProductType.h>
#include <PxXMLParser.h>

#include <limits>

void PxThemeLogoCheck::run(const PxSourceElement &logos, PxFindings *findings)
{
    m_logos.clear();
    for (const PxSourceElement *logo : logos.children) { // whatever they are called
        checkProduct(*logo, findings);
        checkPlace(*logo, findings);
        m_images.checkLogo(*logo, findings);
    }
}

void PxThemeLogoCheck::checkProduct(const PxSourceElement &logo, PxFindings *findings)
{
    const QString booktype = QStringLiteral("booktype");
    const QString name = logo.value(booktype);
    const QString now = QStringLiteral("the logo belongs to no product");
    const PxProductType type(name.toUpper());
    PxListedProductTypes &types = PxListedProductTypes::instance();
    if (name.trimmed().isEmpty()) {
        const PxMissingPart missing = PxElementReading(logo, PxFileKind::Theme).missing(booktype);
        m_file.add(
            findings, "theme-logo-product-missing", missing.range,
            QStringLiteral("the logo names no product: \"booktype\" is %1")
                .arg(logo.attribute(booktype) ? QLatin1String("empty") : QLatin1String("missing")),
            now, missing.hint);
    } else if (type.isValid()) {
        const PxSourceElement *&known = m_logos[int(type.type())];
        if (known)
            m_file.add(findings, "theme-logo-twice", logo.rangeOf(booktype),
                       QStringLiteral("%1 has a logo in %2, too")
                           .arg(type.productName(), PxMessageText::line(m_file, known->nameRange)),
                       QStringLiteral("the later one is used, image and place together"));
        known = &logo;
    } else if (!types.isEmpty() && !types.isListed(name)) {
        m_file.add(findings, "theme-logo-product-unknown", logo.rangeOf(booktype),
                   QStringLiteral("\"%1\" is no known product name").arg(name), now,
                   m_file.isTold(findings, "theme-logo-product-unknown", logo.rangeOf(booktype))
                       ? types.hint(name)
                       : QString());
    }
}

void PxThemeLogoCheck::checkPlace(const PxSourceElement &logo, PxFindings *findings)
{
    const QRect rect = PxXMLParser::readRect(logo.dom);
    if (!rect.isEmpty())
        return;
    constexpr int unreadable = std::numeric_limits<int>::min();
    QStringList missing;
    QString culprit = QStringLiteral("width");
    for (const QString &side : {QStringLiteral("height"), QStringLiteral("width")}) {
        const int length = PxXMLParser::intAttribute(logo.dom, side, unreadable);
        if (!logo.attribute(side))
            missing.prepend(side);
        else if (length == unreadable)
            return; // no number, which is told where values are checked
        else if (length < 1)
            culprit = side;
    }
    if (missing.isEmpty()) {
        m_file.add(findings, "theme-logo-without-place", logo.rangeOf(culprit),
                   QStringLiteral("the place of the logo is empty or too far out"),
                   QStringLiteral("it is %1 x %2 large").arg(rect.width()).arg(rect.height()));
        return;
    }
    const PxMissingPart side =
        PxElementReading(logo, PxFileKind::Theme).missing(missing.constFirst());
    m_file.add(findings, "theme-logo-without-place", side.range,
               QStringLiteral("the logo has no %1")
                   .arg(PxMessageText::quotedList(missing, QStringLiteral(" and no "))),
               QStringLiteral("it has no place"), side.hint);
}
