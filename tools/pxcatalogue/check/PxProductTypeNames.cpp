#include "check/PxProductTypeNames.h"

#include <PxDirectoryConfig.h>
#include <PxProductType.h>
#include <PxXMLLoader.h>

#include <QDomElement>

namespace {

/** The library finds a type by its name, but does not list the names. */
QStringList readNames()
{
    const QDomElement catalogue = PxXMLLoader::loadDocumentElement(
        PxDirectoryConfig::instance()->resource(QStringLiteral("producttypes.xml"), false));
    const QString tag = QStringLiteral("producttype");
    QStringList names;
    for (QDomElement row = catalogue.firstChildElement(tag); !row.isNull();
         row = row.nextSiblingElement(tag)) {
        const PxProductType type(row.attribute(QStringLiteral("name")));
        if (type.isValid())
            names.append(type.productName());
    }
    names.removeDuplicates();
    return names;
}

} // namespace

const QStringList &PxProductTypeNames::all()
{
    static const QStringList ourNames = readNames();
    return ourNames;
}
