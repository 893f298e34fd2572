#include "check/words/PxListedProductTypes.h"

#include <PxDirectoryConfig.h>
#include <PxXMLLoader.h>

#include <algorithm>

PxListedProductTypes::PxListedProductTypes(bool isChecked) : m_isChecked(isChecked)
{
    const QDomElement catalogue = PxXMLLoader::loadDocumentElement(
        PxDirectoryConfig::instance()->resource("producttypes.xml", false));
    constexpr const char *tag = "producttype";
    for (QDomElement row = catalogue.firstChildElement(); !row.isNull();
         row = row.nextSiblingElement()) {
        const QString name = row.attribute("name");
        const bool isFirst = m_keys.insert(key(name)).second;
        m_isAnyRepeated = m_isAnyRepeated || (!isFirst && !name.isEmpty());
        if (name.isEmpty())
            addKeysOf(row);
        const PxProductType type(name);
        if (row.tagName() == tag && type.isValid())
            m_types.append(type);
    }
    // A name that occurs twice is the same type both times.
    std::sort(m_types.begin(), m_types.end());
    m_types.erase(std::unique(m_types.begin(), m_types.end()), m_types.end());
    QStringList names;
    for (const PxProductType &type : qAsConst(m_types))
        names.append(type.productName());
    m_names = PxKnownNames(names);
}

/** Adds the values of all attributes, because the attribute "name" itself may be misspelt. */
void PxListedProductTypes::addKeysOf(const QDomElement &row)
{
    const QDomNamedNodeMap attributes = row.attributes();
    for (int i = 0; i < attributes.size(); ++i)
        m_keys.insert(key(attributes.item(i).nodeValue()));
}
