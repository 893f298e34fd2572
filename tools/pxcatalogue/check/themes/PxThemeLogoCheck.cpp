#include "check/themes/PxThemeLogoCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"

#include <PxProductType.h>
#include <PxXMLParser.h>

#include <limits>

void PxThemeLogoCheck::run()
{
    for (const PxSourceElement *logo : m_element.children) { // whatever they are called
        checkProduct(*logo);
        checkPlace(*logo);
    }
}

void PxThemeLogoCheck::checkProduct(const PxSourceElement &logo) const
{
    constexpr const char *booktype = "booktype";
    const QString name = logo.value(booktype);
    if (!name.trimmed().isEmpty() && !PxProductType(name.toUpper()).isValid() &&
        !m_types.isEmpty() && !m_types.isListed(name))
        m_report
            .add(PxTag::ThemeLogoProductUnknown, logo.rangeOf(booktype),
                 "\"%1\" is no known product name", name)
            .now("the logo belongs to no product")
            .hint([&] { return m_types.hint(name); });
}

void PxThemeLogoCheck::checkPlace(const PxSourceElement &logo) const
{
    const QRect rect = PxXMLParser::readRect(logo.dom);
    if (!rect.isEmpty())
        return;
    constexpr int unreadable = std::numeric_limits<int>::min();
    QStringList missing;
    const char *culprit = "width";
    for (const char *side : {"height", "width"}) {
        const int length = PxXMLParser::intAttribute(logo.dom, side, unreadable);
        if (!logo.attribute(side))
            missing.prepend(side);
        else if (length == unreadable)
            return; // no number, which is told where values are checked
        else if (length < 1)
            culprit = side;
    }
    if (missing.isEmpty()) {
        m_report
            .add(PxTag::ThemeLogoWithoutPlace, logo.rangeOf(culprit),
                 "the place of the logo is empty or too far out")
            .now("it is %1 x %2 large", rect.width(), rect.height());
        return;
    }
    const PxMissingPart side =
        PxElementReading(logo, PxFileKind::Theme).missing(qPrintable(missing.constFirst()));
    m_report
        .add(PxTag::ThemeLogoWithoutPlace, side.range, "the logo has no %1",
             PxMessageText::quotedList(missing, " and no "))
        .now("it has no place")
        .hint(side.hint);
}
