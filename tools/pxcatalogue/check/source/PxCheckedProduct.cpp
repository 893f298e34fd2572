#include "check/source/PxCheckedProduct.h"

PxCheckedProduct::PxCheckedProduct(const PxCheckedFile &file, bool isLegacy)
    : m_file(file)
    , m_element(*file.root()->firstChild(QStringLiteral("product")))
    , m_type(m_element.value(QStringLiteral("name")))
    , m_description(m_element.dom)
    , m_isLegacy(isLegacy)
{}
