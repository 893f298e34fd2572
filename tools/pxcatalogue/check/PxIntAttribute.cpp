#include "check/PxIntAttribute.h"

#include <PxXMLParser.h>

PxIntAttribute::PxIntAttribute(const PxSourceElement &element, const QString &name, int absent)
    : m_isGiven(element.attribute(name) != nullptr)
    // Only what is no number depends on the default.
    , m_isNumber(PxXMLParser::intAttribute(element.dom, name, 0) ==
                 PxXMLParser::intAttribute(element.dom, name, 1))
    , m_number(PxXMLParser::intAttribute(element.dom, name, absent))
{}
