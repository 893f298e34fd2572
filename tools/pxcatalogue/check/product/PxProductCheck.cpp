#include "check/product/PxProductCheck.h"

#include "check/words/PxSpelling.h"

#include <PxXMLParser.h>

#include <algorithm>

namespace {

/** Whether a file of this name lies in another directory, is hidden, or cannot be typed. */
bool isUnsafeForFile(const QString &name)
{
    return name.startsWith(QLatin1Char('.')) ||
           std::any_of(name.begin(), name.end(), [](QChar character) {
               return character == QLatin1Char('/') || character == QLatin1Char('\\') ||
                      character.category() == QChar::Other_Control;
           });
}

} // namespace

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
    const QString now = "the file is skipped without a word";
    if (name.trimmed().isEmpty())
        return;
    if (isUnsafeForFile(name))
        checkNameOfFile();
    // If no product type is known at all, the cause is not in this file.
    else if (!m_product.type().isValid() && !m_types.isEmpty() && !m_types.isListed(name))
        m_report
            .add(PxTag::ProductNameUnknown, element.rangeOf(attribute),
                 "there is no product type \"%1\"", name)
            .now(now)
            .hint([&] { return m_types.hint(name); });
    else if (!m_product.type().isValid() && !m_types.isEmpty() && !m_types.isChecked())
        m_report
            .add(PxTag::ProductNameUnknown, element.rangeOf(attribute),
                 "the row of \"%1\" in producttypes.xml is left out", name)
            .now(now)
            .hint("check producttypes.xml");
    else if (m_product.type().isValid() && name != name.trimmed())
        m_report
            .add(PxTag::ProductNameBlank, element.rangeOf(attribute),
                 "the name \"%1\" has a blank at its edge", name)
            .now("the user's default templates are looked for in \"%1.xml\"", name)
            .hint(PxSpelling::didYouMean(name.trimmed()))
            .replacement(name.trimmed());
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
