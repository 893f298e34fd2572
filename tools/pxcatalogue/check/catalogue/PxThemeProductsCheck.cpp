#include "check/catalogue/PxThemeProductsCheck.h"

#include "check/layout/PxProductPages.h"

#include <PxXMLParser.h>

#include <algorithm>

void PxThemeProductsCheck::addThemes(const PxCheckedFile &file)
{
    for (const PxSourceElement *theme : file.root()->children) { // whatever they are called
        QSet<int> products;
        if (const PxSourceElement *list = theme->firstChild("products")) {
            for (const PxSourceElement *product : list->childrenNamed("product")) {
                const PxProductType type(product->dom.text());
                if (!type.isValid())
                    continue;
                products.insert(type.type());
                m_named.append({type, file.place(product->textRange())});
            }
        }
        if (const PxSourceElement *logos = theme->firstChild("logos"))
            addLogos(file, *logos, products);
    }
}

/** `products` are those of the theme; a logo for another one has been reported. */
void PxThemeProductsCheck::addLogos(const PxCheckedFile &file, const PxSourceElement &logos,
                                    const QSet<int> &products)
{
    for (const PxSourceElement *logo : logos.children) {
        const PxProductType type(logo->value("booktype").toUpper());
        if (!type.isValid())
            continue;
        if (products.isEmpty())
            m_named.append({type, file.place(logo->rangeOf("booktype"))});
        const QRect rect = PxXMLParser::readRect(logo->dom);
        if (!rect.isEmpty()) // else its place is missing or malformed, which has been reported
            m_logos.append(
                {type, file.place(logo->rangeOf("x")), file.place(logo->rangeOf("y")), rect});
    }
}

void PxThemeProductsCheck::addProduct(const PxCheckedProduct &product, bool isInOtherUnit)
{
    const PxProductType type = product.type();
    if (!type.isValid())
        return;
    (product.isLegacy() ? m_legacy : m_current).insert(type.type());
    const PxProductTypeDescription &description = product.description();
    const int pageCount = description.minPages();
    QSize size = description.usablePrintSize(PxPageTypeNormalPage, pageCount);
    if (isInOtherUnit || size.isEmpty())
        return;
    for (const PxPageEntry &entry : product.pages().read())
        size = size.expandedTo(description.usablePrintSize(entry.type, pageCount));
    const QRect sheet = PxProductPages::sheet(size,
                                              std::max(description.bleedMarginNormal().horizontal(),
                                                       description.bleedMarginCover().horizontal()),
                                              std::max(description.bleedMarginNormal().vertical(),
                                                       description.bleedMarginCover().vertical()));
    if (!sheet.isEmpty())
        m_sheets[type] |= sheet;
}

void PxThemeProductsCheck::run() const
{
    for (const Named &named : m_named) {
        const int code = named.type.type();
        if (m_legacy.contains(code) && !m_current.contains(code))
            m_report
                .add(PxTag::ThemeProductLegacy, named.place, "%1 is an older product",
                     named.type.productName())
                .now("nobody is offered the theme for it");
    }
    for (const Logo &logo : m_logos)
        checkLogo(logo);
}

void PxThemeProductsCheck::checkLogo(const Logo &logo) const
{
    const auto sheet = m_sheets.constFind(logo.type);
    if (sheet == m_sheets.constEnd() || sheet->contains(logo.rect))
        return;
    const bool isBeside = logo.rect.left() < sheet->left() || logo.rect.right() > sheet->right();
    const int from = isBeside ? logo.rect.left() : logo.rect.top();
    const qint64 to = qint64(isBeside ? logo.rect.right() : logo.rect.bottom()) + 1;
    const int least = isBeside ? sheet->left() : sheet->top();
    const qint64 most = qint64(least) + (isBeside ? sheet->width() : sheet->height());
    m_report
        .add(PxTag::ThemeLogoOutside, isBeside ? logo.left : logo.top,
             "the logo reaches from %1 = %2 to %3, the pages of %6 from %4 to %5",
             isBeside ? "x" : "y", from, to, least, most, logo.type.productName())
        .now("the place is used as it is");
}
