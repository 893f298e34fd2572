#include "check/product/PxProductCheck.h"

#include "check/words/PxSpelling.h"

#include <PxXMLParser.h>

#include <algorithm>

void PxProductCheck::run()
{
    checkName();
    checkAlignmentStyle();
}

void PxProductCheck::checkName() const
{
    const PxSourceElement &element = m_product.element();
    constexpr const char *attribute = "name";
    const QString name = element.value(attribute);
    if (name.trimmed().isEmpty())
        return;
    if (isUnsafeForFile(name))
        checkNameOfFile();
    else if (m_product.type().isValid() && name != name.trimmed())
        m_report
            .add(PxTag::ProductNameBlank, element.rangeOf(attribute),
                 "the name \"%1\" has a blank at its edge", name)
            .now("the user's default templates are looked for in \"%1.xml\"", name)
            .hint(PxSpelling::didYouMean(name.trimmed()))
            .replacement(name.trimmed());
}

bool PxProductCheck::isUnsafeForFile(const QString &name)
{
    return name.startsWith(QLatin1Char('.')) ||
           std::any_of(name.begin(), name.end(), [](QChar character) {
               return character == QLatin1Char('/') || character == QLatin1Char('\\') ||
                      character.category() == QChar::Other_Control;
           });
}

void PxProductCheck::checkNameOfFile() const
{
    constexpr const char *attribute = "name";
    m_report
        .add(PxTag::NameUnsafeForFile, m_product.element().rangeOf(attribute),
             "\"%1\" cannot name a file", m_product.element().value(attribute))
        .now(m_product.type().isValid()
                 ? "the user's default templates are looked for in a file of this name"
                 : "the file is skipped: there is no such product type")
        .hint("use letters, digits and underscores only");
}

void PxProductCheck::checkAlignmentStyle() const
{
    // The library asks for them in this order.
    static constexpr const char *ourStyles[] = {
        "cardStyleAlignment", "varioSingleCardStyleAlignment", "collegeBlockStyleAlignment"};
    const PxSourceElement &element = m_product.element();
    const char *first = nullptr;
    for (const char *style : ourStyles) {
        if (!PxXMLParser::boolAttribute(element.dom, style, false))
            continue;
        if (!first)
            first = style;
        else
            m_report
                .add(PxTag::AlignmentStyleShadowed, element.rangeOf(style),
                     "\"%1\" is true beside \"%2\"", style, first)
                .now("\"%1\" counts, \"%2\" is not read", first, style)
                .hint("keep the one that is meant");
    }
}
