#include "check/layout/PxImageCheck.h"

#include <PxDirectoryConfig.h>

#include <QFileInfo>

void PxImageCheck::run()
{
    const QFileInfo file(PxDirectoryConfig::instance()->resource(m_name, false));
    if (m_name.isEmpty() || file.isFile())
        return;
    m_report
        .add(PxTag::ImageMissing, m_element.rangeOf("image"),
             file.exists() ? QString("\"%1\" is no regular file").arg(m_name)
                           : QString("there is no image \"%1\" in the resources").arg(m_name))
        .now("the name is handed on as it is, and nothing is painted")
        .hint([&] { return m_images.hint(m_name, file); });
}
