#include "check/PxElementReading.h"

#include "check/PxSpelling.h"
#include "vocabulary/PxVocabulary.h"

#include <PxListParts.h>
#include <PxXMLParser.h>

#include <algorithm>

namespace {

const PxElementRow &productRow(const PxSourceElement &element)
{
    const PxElementRow *row =
        element.parent ? PxVocabulary::child(productRow(*element.parent), element.name) : nullptr;
    return row ? *row : PxVocabulary::root(PxFileKind::Product);
}

} // namespace

PxElementReading::PxElementReading(const PxSourceElement &element)
    : PxElementReading(element, productRow(element))
{}

bool PxElementReading::hasOnlyKnown() const
{
    if (!m_hasOnlyKnown)
        m_hasOnlyKnown = std::all_of(m_element.attributes.begin(), m_element.attributes.end(),
                                     [this](const PxSourceAttribute &attribute) {
                                         return PxVocabulary::attribute(m_row, attribute.name);
                                     });
    return *m_hasOnlyKnown;
}

bool PxElementReading::isMisspelt(const QString &attribute) const
{
    if (isGiven(attribute) || hasOnlyKnown())
        return false;
    const QStringList names = missing();
    return std::any_of(m_element.attributes.begin(), m_element.attributes.end(),
                       [&](const PxSourceAttribute &own) {
                           return !PxVocabulary::attribute(m_row, own.name) &&
                                  PxSpelling::nearest(own.name, names) == attribute;
                       });
}

bool PxElementReading::isReadable(const QString &attribute) const
{
    const PxSourceAttribute *own = m_element.attribute(attribute);
    const PxAttributeRow *row = own ? PxVocabulary::attribute(m_row, attribute) : nullptr;
    return !row || isReadable(m_element, *own, *row);
}

bool PxElementReading::isReadable(const PxSourceElement &element,
                                  const PxSourceAttribute &attribute, const PxAttributeRow &row)
{
    const QString &name = attribute.name;
    bool isReadable = true;
    switch (row.type) {
    case PxValueType::Integer:
    case PxValueType::RectanglePart:
        // What is no number gives the default, whichever that is, and so below.
        return PxXMLParser::intAttribute(element.dom, name, 0) != 0 ||
               PxXMLParser::intAttribute(element.dom, name, 1) == 0;
    case PxValueType::Boolean:
        return PxXMLParser::boolAttribute(element.dom, name, false) ||
               !PxXMLParser::boolAttribute(element.dom, name, true);
    case PxValueType::OneKeyword:
        return PxVocabulary::isKeyword(row.keywords, attribute.value);
    case PxValueType::Keyword:
    case PxValueType::KeywordList:
        pxForEachPart(attribute.value, [&](QStringView part) {
            isReadable = isReadable && PxVocabulary::isKeyword(row.keywords, part.toString());
        });
        return isReadable;
    default:
        return true; // any text can be read
    }
}

int PxElementReading::number(const QString &attribute, int absent) const
{
    return PxXMLParser::intAttribute(m_element.dom, attribute, absent);
}

QString PxElementReading::meant(const QString &name) const
{
    return PxSpelling::nearest(name, missing());
}

/** The attributes that the library would read, and that are not given. */
QStringList PxElementReading::missing() const
{
    QStringList names;
    for (const PxAttributeRow &row : m_row.attributes) {
        const QString name = QLatin1String(row.name);
        if (!isGiven(name))
            names.append(name);
    }
    return names;
}

bool PxElementReading::isChildMisplaced(const QString &name) const
{
    const PxSourceElement *root = &m_element;
    while (root->parent)
        root = root->parent;
    return isBelow(*root, name);
}

/** Not in others like this element: what stands there belongs to those. */
bool PxElementReading::isBelow(const PxSourceElement &parent, const QString &name) const
{
    return std::any_of(
        parent.children.begin(), parent.children.end(), [&](const PxSourceElement *child) {
            const bool isOther =
                child != &m_element && &parent == m_element.parent && child->name == m_element.name;
            return !isOther &&
                   (!PxSpelling::nearest(child->name, {name}).isEmpty() || isBelow(*child, name));
        });
}
