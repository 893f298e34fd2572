#include "classification/PxProductClassification.h"

#include "geometry/PxClampedArithmetic.h"

#include <PxXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QObject>

PxProductClassification::PxProductClassification(const QDomElement &product)
    : m_productType(PxProductType(product.attribute(QStringLiteral("name"))))
{
    const QDomElement classification = product.firstChildElement(QStringLiteral("classification"));
    m_sizeNameCm = classification.attribute(QStringLiteral("cm"));
    m_sizeNameInch = classification.attribute(QStringLiteral("inch"));
    m_material = PxProductMaterial(classification.attribute(QStringLiteral("group")));

    const QDomElement usableSize = product.firstChildElement(QStringLiteral("usablesize"));
    m_areaSize =
        pxClampedInt(qint64(PxXMLParser::intAttribute(usableSize, QStringLiteral("width"), 0)) *
                     PxXMLParser::intAttribute(usableSize, QStringLiteral("height"), 0));
}

QString PxProductClassification::sizeNameWithUnit(bool metric) const
{
    return sizeName(metric) + QLatin1Char(' ') +
           (metric ? QObject::tr("cm", "Abkürzung für Zentimeter")
                   : QObject::tr("in", "Abkürzung für Zoll/Inch"));
}

QDebug operator<<(QDebug debug, const PxProductClassification &classification)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductClassification(" << classification.productType() << ", "
                           << classification.material() << ", " << classification.sizeName(true)
                           << " cm)";
}
