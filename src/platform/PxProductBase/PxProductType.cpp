#include "PxProductType.h"

#include "PxProductTypeCatalogue.h"

#include <QDebug>

PxProductType::PxProductType(int code) : m_type(static_cast<PxProductTypeEnum>(code))
{
    take(PxProductTypeCatalogue::instance()->find(code));
}

PxProductType::PxProductType(const QString &name)
{
    take(PxProductTypeCatalogue::instance()->find(name));
}

QString PxProductType::productName() const
{
    return m_entry ? m_entry->name : QString();
}

QString PxProductType::shortProductName() const
{
    return m_entry ? m_entry->shortName : QString();
}

void PxProductType::take(const PxProductTypeEntry *entry)
{
    if (!entry)
        return;
    m_type = entry->type;
    m_productClass = entry->productClass;
    m_entry = entry;
}

QDebug operator<<(QDebug debug, const PxProductType &type)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductType(" << int(type.type()) << ", " << type.productName()
                           << ')';
}
