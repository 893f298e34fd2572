#include "check/source/PxSourceElement.h"

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
    const auto found =
        std::find_if(attributes.begin(), attributes.end(), [&](const PxSourceAttribute &a) {
            return a.name == QLatin1String(attributeName);
        });
    return found == attributes.end() ? nullptr : found;
}

QString PxSourceElement::value(const char *attributeName) const
{
    const PxSourceAttribute *found = attribute(attributeName);
    return found ? found->value : QString();
}

PxSourceRange PxSourceElement::rangeOf(const char *attributeName) const
{
    const PxSourceAttribute *found = attribute(attributeName);
    return found ? found->valueRange : nameRange;
}

const PxSourceElement *PxSourceElement::firstChild(const char *childName) const
{
    const auto found =
        std::find_if(children.begin(), children.end(), [&](const PxSourceElement *child) {
            return child->name == QLatin1String(childName);
        });
    return found == children.end() ? nullptr : *found;
}

QVector<const PxSourceElement *> PxSourceElement::childrenNamed(const char *childName) const
{
    QVector<const PxSourceElement *> named;
    std::copy_if(
        children.begin(), children.end(), std::back_inserter(named),
        [&](const PxSourceElement *child) { return child->name == QLatin1String(childName); });
    return named;
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
