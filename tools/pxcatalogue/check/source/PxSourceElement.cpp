#include "check/source/PxSourceElement.h"

#include <PxXMLParser.h>

#include <algorithm>

QString PxSourceNode::kindText(Kind kind)
{
    switch (kind) {
    case Kind::CharacterData:
        return "a CDATA section";
    case Kind::Comment:
        return "a comment";
    case Kind::ProcessingInstruction:
        return "a processing instruction";
    default:
        return "text";
    }
}

const PxSourceAttribute *PxSourceElement::attribute(const char *attributeName) const
{
    const QLatin1String wanted(attributeName);
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const PxSourceAttribute &a) { return a.name == wanted; });
    return found == attributes.end() ? nullptr : found;
}

QString PxSourceElement::value(const char *attributeName) const
{
    const PxSourceAttribute *found = attribute(attributeName);
    return found ? found->value : QString();
}

int PxSourceElement::number(const char *attributeName, int absent) const
{
    const PxSourceAttribute *found = attribute(attributeName);
    return found ? PxXMLParser::intAttribute(dom, found->name, absent) : absent;
}

PxSourceRange PxSourceElement::rangeOf(const char *attributeName) const
{
    const PxSourceAttribute *found = attribute(attributeName);
    return found ? found->valueRange : nameRange;
}

const PxSourceElement *PxSourceElement::firstChild(const char *childName) const
{
    const QLatin1String wanted(childName);
    const auto found =
        std::find_if(children.begin(), children.end(),
                     [&](const PxSourceElement *child) { return child->name == wanted; });
    return found == children.end() ? nullptr : *found;
}

QVector<const PxSourceElement *> PxSourceElement::childrenNamed(const char *childName) const
{
    const QLatin1String wanted(childName);
    QVector<const PxSourceElement *> found;
    std::copy_if(children.begin(), children.end(), std::back_inserter(found),
                 [&](const PxSourceElement *child) { return child->name == wanted; });
    return found;
}

PxSourceRange PxSourceElement::textRange() const
{
    PxSourceRange all = nameRange;
    bool isFirst = true;
    for (const PxSourceNode &node : nodes) {
        if (!node.isText())
            continue;
        if (isFirst)
            all.begin = node.range.begin;
        all.end = node.range.end;
        isFirst = false;
    }
    return all;
}
