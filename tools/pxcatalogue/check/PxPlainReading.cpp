#include "check/PxPlainReading.h"

#include "check/PxSpelling.h"

#include <PxPageAlignment.h>
#include <PxSurroundingType.h>
#include <PxXMLParser.h>
#include <values/PxBinding.h>
#include <values/PxPageType.h>

#include <algorithm>

namespace {

template <typename IsKeyword>
bool areKeywords(const PxSourceElement &element, const char *attribute, IsKeyword isKeyword)
{
    const PxSourceAttribute *found = element.attribute(QLatin1String(attribute));
    if (!found)
        return true;
    bool areAll = true;
    pxForEachPart(found->value,
                  [&](QStringView part) { areAll = areAll && isKeyword(part.toString()); });
    return areAll;
}

template <typename ENUM>
bool isKeywordOf(const PxEnumWrapper<ENUM> &wrapper, const QString &keyword)
{
    constexpr auto none = static_cast<ENUM>(-1);
    return wrapper.enumToStringTable()->decode(keyword, none) != none;
}

} // namespace

bool PxPlainReading::hasOnly(const PxSourceElement &element,
                             std::initializer_list<const char *> attributes)
{
    return std::all_of(
        element.attributes.begin(), element.attributes.end(), [&](const PxSourceAttribute &own) {
            return std::any_of(attributes.begin(), attributes.end(),
                               [&](const char *name) { return own.name == QLatin1String(name); });
        });
}

bool PxPlainReading::isMissing(const PxSourceElement &element, const char *attribute)
{
    const QString name = QLatin1String(attribute);
    return !element.attribute(name) &&
           std::none_of(element.attributes.begin(), element.attributes.end(),
                        [&](const PxSourceAttribute &own) {
                            return !PxSpelling::nearest(own.name, {name}).isEmpty();
                        });
}

bool PxPlainReading::isInt(const PxSourceElement &element, const char *attribute)
{
    const QString name = QLatin1String(attribute);
    return !element.attribute(name) || PxXMLParser::intAttribute(element.dom, name, 0) ==
                                           PxXMLParser::intAttribute(element.dom, name, 1);
}

bool PxPlainReading::isBool(const PxSourceElement &element, const char *attribute)
{
    const QString name = QLatin1String(attribute);
    return !element.attribute(name) || PxXMLParser::boolAttribute(element.dom, name, false) ==
                                           PxXMLParser::boolAttribute(element.dom, name, true);
}

bool PxPlainReading::isPageTypes(const PxSourceElement &element, const char *attribute)
{
    return areKeywords(element, attribute,
                       [](const QString &word) { return isKeywordOf(PxPageType(), word); });
}

bool PxPlainReading::isAlignments(const PxSourceElement &element, const char *attribute)
{
    return areKeywords(element, attribute, [](const QString &word) {
        return EnumHelper::decodeKeyword(word, EnumHelper::globalMapPageAlignmentString,
                                         PxPageAlignmentNone) != PxPageAlignmentNone;
    });
}

bool PxPlainReading::isSurroundingType(const PxSourceElement &element, const char *attribute)
{
    const PxSourceAttribute *found = element.attribute(QLatin1String(attribute));
    return !found ||
           EnumHelper::decodeKeyword(found->value, EnumHelper::globalMapSurroundingTypeString,
                                     PxSurroundingTypeNone) != PxSurroundingTypeNone;
}

bool PxPlainReading::isBindings(const PxSourceElement &element, const char *attribute)
{
    return areKeywords(element, attribute,
                       [](const QString &word) { return isKeywordOf(PxBinding(), word); });
}
