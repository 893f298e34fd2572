#include "check/rules/PxElementReading.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <PxListParts.h>
#include <PxXMLParser.h>

#include <algorithm>
#include <iterator>

namespace {

const PxElementRow &rowOf(const PxSourceElement &element, PxFileKind kind)
{
    const PxElementRow *row =
        element.parent ? PxFormat::child(rowOf(*element.parent, kind), element.name) : nullptr;
    return row ? *row : PxFormat::root(kind);
}

/** Whether the library reads any text between the tags. */
bool hasText(const PxSourceElement &element)
{
    return std::any_of(element.nodes.begin(), element.nodes.end(),
                       [](const PxSourceNode &node) {
                           return node.isText() && !QStringView(node.text).trimmed().isEmpty();
                       }) ||
           std::any_of(element.children.begin(), element.children.end(),
                       [](const PxSourceElement *child) { return hasText(*child); });
}

} // namespace

PxElementReading::PxElementReading(const PxSourceElement &element, PxFileKind kind)
    : PxElementReading(element, rowOf(element, kind))
{}

bool PxElementReading::hasOnlyKnown() const
{
    if (!m_hasOnlyKnown)
        m_hasOnlyKnown = std::all_of(m_element.attributes.begin(), m_element.attributes.end(),
                                     [this](const PxSourceAttribute &attribute) {
                                         return PxFormat::attribute(m_row, attribute.name);
                                     });
    return *m_hasOnlyKnown;
}

const PxSourceAttribute *PxElementReading::misspelling(const char *attribute) const
{
    if (isGiven(attribute) || hasOnlyKnown())
        return nullptr;
    const auto found = std::find_if(m_element.attributes.begin(), m_element.attributes.end(),
                                    [&](const PxSourceAttribute &own) {
                                        return !PxFormat::attribute(m_row, own.name) &&
                                               PxSpelling::isNear(own.name, attribute) &&
                                               meant(own.name) == attribute;
                                    });
    return found == m_element.attributes.end() ? nullptr : found;
}

PxMissingPart PxElementReading::missing(const char *attribute) const
{
    const PxSourceAttribute *own = misspelling(attribute);
    return own ? PxMissingPart{own->nameRange, PxSpelling::didYouMean(attribute)}
               : PxMissingPart{m_element.rangeOf(attribute), QString()};
}

QStringList PxElementReading::missingOf(std::initializer_list<const char *> attributes) const
{
    QStringList names;
    std::copy_if(attributes.begin(), attributes.end(), std::back_inserter(names),
                 [this](const char *name) { return !isGiven(name); });
    return names;
}

PxMissingPart PxElementReading::missingText() const
{
    const auto isUnknown = [this](const PxSourceAttribute &attribute) {
        return !PxFormat::attribute(m_row, attribute.name) &&
               !attribute.name.startsWith(QLatin1String("xml")) &&
               !attribute.name.contains(QLatin1Char(':'));
    };
    const auto found =
        std::find_if(m_element.attributes.begin(), m_element.attributes.end(), isUnknown);
    return found != m_element.attributes.end() && !hasText(m_element)
               ? PxMissingPart{found->nameRange, "write it between the tags"}
               : PxMissingPart{m_element.textRange(), QString()};
}

bool PxElementReading::isReadable(const char *attribute) const
{
    const PxSourceAttribute *own = m_element.attribute(attribute);
    const PxAttributeRow *row = own ? PxFormat::attribute(m_row, own->name) : nullptr;
    return !row || isReadable(m_element, *own, *row);
}

bool PxElementReading::isReadable(const PxSourceElement &element,
                                  const PxSourceAttribute &attribute, const PxAttributeRow &row)
{
    const QString &name = attribute.name;
    bool isReadable = true;
    switch (row.type) {
    case PxValueType::Integer:
    case PxValueType::Length:
    case PxValueType::RectanglePart:
        // A value that cannot be read gives any default.
        return PxXMLParser::intAttribute(element.dom, name, 0) != 0 ||
               PxXMLParser::intAttribute(element.dom, name, 1) == 0;
    case PxValueType::Boolean:
        return PxXMLParser::boolAttribute(element.dom, name, false) ||
               !PxXMLParser::boolAttribute(element.dom, name, true);
    case PxValueType::OneKeyword:
        return PxFormat::isKeyword(row.keywords, attribute.value);
    case PxValueType::Keyword:
    case PxValueType::KeywordList:
        pxForEachPart(attribute.value, [&](QStringView part) {
            isReadable = isReadable && PxFormat::isKeyword(row.keywords, part.toString());
        });
        return isReadable;
    default:
        return true; // any text can be read
    }
}

int PxElementReading::number(const char *attribute, int absent) const
{
    return m_element.number(attribute, absent);
}

QString PxElementReading::meant(const QString &name) const
{
    return PxSpelling::nearest(name, namesOfMissing());
}

/** The attributes that the library would read, and that are not given. */
QStringList PxElementReading::namesOfMissing() const
{
    QStringList names;
    for (const PxAttributeRow &row : m_row.attributes) {
        if (!isGiven(row.name))
            names.append(row.name);
    }
    return names;
}

const PxSourceElement *PxElementReading::misplacedChild(const char *name, Search search) const
{
    int left = PxCheckLimits::searchedElements;
    const PxSourceElement *own = findBelow(m_element, name, &left);
    // Its neighbours are all like it, so the child may belong to one of them.
    if (own || search == Search::Inside || m_row.occurrence == PxOccurrence::AnyName)
        return own;
    const PxSourceElement *root = &m_element;
    while (root->parent)
        root = root->parent;
    return findBelow(*root, name, &left);
}

/** Does not search in other elements of the same name: what is in them belongs to them. */
const PxSourceElement *PxElementReading::findBelow(const PxSourceElement &parent, const char *name,
                                                   int *left) const
{
    for (const PxSourceElement *child : parent.children) {
        if (--*left < 0)
            return nullptr;
        if (&parent == m_element.parent && child->name == m_element.name)
            continue; // this one has been searched
        if (PxSpelling::isNear(child->name, name))
            return child;
        if (const PxSourceElement *found = findBelow(*child, name, left))
            return found;
    }
    return nullptr;
}

PxMissingPart PxElementReading::missingChild(const char *name, Search search) const
{
    const PxSourceElement *meant = misplacedChild(name, search);
    if (!meant)
        return {m_element.nameRange, QString()};
    const PxElementRow *row = PxFormat::child(m_row, name);
    const bool isEntry = row && PxFormat::isChildName(*row, meant->name);
    const bool isElsewhere = meant->name == name;
    return {meant->nameRange, isEntry       ? QString("put it into \"%1\"").arg(name)
                              : isElsewhere ? QString("put it into \"%1\"").arg(m_element.name)
                                            : PxSpelling::didYouMean(name)};
}

PxMissingPart PxElementReading::missingEntries() const
{
    const QString name = QLatin1String(m_row.children.begin()->name);
    for (const PxSourceElement *child : m_element.children) {
        if (!child->name.contains(QLatin1Char(':'))) // else of another application
            return {child->nameRange, PxSpelling::didYouMean(name)};
    }
    const auto text = std::find_if(m_element.nodes.begin(), m_element.nodes.end(),
                                   [](const PxSourceNode &node) { return node.isText(); });
    if (text == m_element.nodes.end())
        return {m_element.nameRange, QString()};
    return {text->range, QString("write a \"%1\" element for each").arg(name)};
}
