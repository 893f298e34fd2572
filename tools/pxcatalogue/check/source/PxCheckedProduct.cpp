#include "check/source/PxCheckedProduct.h"

PxCheckedProduct::PxCheckedProduct(const PxCheckedFile &file, bool isLegacy)
    : m_file(file)
    , m_element(*file.root()->firstChild("product"))
    , m_type(m_element.value("name"))
    , m_description(m_element.dom)
    , m_pages(file, m_element, m_description.countAbstractPages())
    , m_isLegacy(isLegacy)
{}
