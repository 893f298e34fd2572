#include "check/PxListedProductTypes.h"

#include "check/PxSpelling.h"

#include <PxDirectoryConfig.h>
#include <PxProductType.h>
#include <PxXMLLoader.h>

PxListedProductTypes::PxListedProductTypes()
{
    const QDomElement types = PxXMLLoader::loadDocumentElement(
        PxDirectoryConfig::instance()->resource(QStringLiteral("producttypes.xml"), false));
    const QString tag = QStringLiteral("producttype");
    for (QDomElement row = types.firstChildElement(tag); !row.isNull();
         row = row.nextSiblingElement(tag)) {
        const QString name = row.attribute(QStringLiteral("name"));
        m_keys.insert(key(name));
        const PxProductType type(name);
        if (type.isValid())
            m_names.append(type.productName());
    }
}

QString PxListedProductTypes::hint(const QString &name)
{
    return m_hintsLeft-- > 0 ? PxSpelling::hint(name, m_names) : QString();
}
