#include "origins/PxOrigins.h"

#include "origins/PxOriginReader.h"

PxOrigins::PxOrigins(const PxShownProduct &shown) : m_origins(PxOriginReader(shown).read()) {}

PxOrigin PxOrigins::at(const QString &pointer) const
{
    for (QString around = pointer; !around.isEmpty(); around.truncate(around.lastIndexOf('/'))) {
        const auto found = m_origins.constFind(around);
        if (found != m_origins.constEnd())
            return *found;
    }
    return PxOrigin();
}

QJsonObject PxOrigins::json() const
{
    QJsonObject json;
    for (auto origin = m_origins.begin(); origin != m_origins.end(); ++origin)
        json.insert(origin.key(), origin->json());
    return json;
}
