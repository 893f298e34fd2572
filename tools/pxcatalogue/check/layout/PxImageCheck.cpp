#include "check/layout/PxImageCheck.h"

#include "check/words/PxImageNames.h"

#include <PxDirectoryConfig.h>

#include <QFileInfo>

void PxImageCheck::run(const PxCheckedProduct &product, const PxSourceElement &element,
                       const QString &name, PxFindings *findings)
{
    const QFileInfo file(PxDirectoryConfig::instance()->resource(name, false));
    if (name.isEmpty() || file.isFile())
        return;
    product.add(findings, "image-missing", element.rangeOf(QStringLiteral("image")),
                file.exists()
                    ? QStringLiteral("\"%1\" is no regular file").arg(name)
                    : QStringLiteral("there is no image \"%1\" in the resources").arg(name),
                QStringLiteral("the name is handed on as it is, and nothing is painted"),
                PxImageNames(PxImageNames::Kind::Any).hint(name, file));
}
