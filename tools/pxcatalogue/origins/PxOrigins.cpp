#include "origins/PxOrigins.h"

#include "origins/PxOriginReader.h"
#include "report/PxProductReport.h"

PxOrigins::PxOrigins(const PxShownProduct &shown) : PxOrigins(shown, PxOriginFiles(shown)) {}

PxOrigins::PxOrigins(const PxShownProduct &shown, const PxOriginFiles &files)
    : PxOrigins(shown, files, PxProductReport::of(shown))
{}

PxOrigins::PxOrigins(const PxShownProduct &shown, const PxOriginFiles &files,
                     const PxReport &report)
    : m_origins(PxOriginReader(shown, files, report).read())
{}

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
