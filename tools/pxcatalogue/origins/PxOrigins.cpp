#include "origins/PxOrigins.h"

#include "check/source/PxCheckedFile.h"
#include "format/PxOriginRows.h"
#include "report/PxShownProduct.h"

#include <PxDirectoryConfig.h>

PxOrigins::PxOrigins(const PxShownProduct &shown)
{
    const PxCheckedFile file(PxDirectoryConfig::instance()->resource(shown.file, false));
    const PxSourceElement *root = file.root();
    const PxSourceElement *product = root ? root->firstChild("product") : nullptr;
    for (const PxOriginRow &row : PxOriginRows::all()) {
        const QString pointer = row.pointer;
        if (!product || pointer.contains('*') || m_origins.contains(pointer))
            continue;
        PxOrigin origin;
        const QString first = QString(row.inputs).section(' ', 0, 0).section('|', 0, 0);
        const QString path = first.section('@', 0, 0);
        const PxSourceElement *element =
            path.isEmpty() ? product : product->firstChild(path.toUtf8().constData());
        const PxSourceAttribute *attribute =
            element ? element->attribute(first.section('@', 1).toUtf8().constData()) : nullptr;
        if (attribute) {
            origin.kind = row.rule ? PxOrigin::Kind::Computed : PxOrigin::Kind::File;
            origin.place = file.place(attribute->nameRange);
            origin.place.path = shown.file;
            origin.from = QStringList{PxOrigin::text(origin.place)};
        }
        origin.from += PxOriginRows::inputsOf(pointer);
        origin.rule = row.rule;
        m_origins.insert(pointer, origin);
    }
}

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
