#include "check/source/PxFileHead.h"

#include "check/PxCheckLimits.h"

#include <QFile>
#include <QXmlStreamReader>

PxFileHead::PxFileHead(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(file.read(PxCheckLimits::headLength));
    if (!reader.readNextStartElement())
        return;
    const QString root = reader.name().toString();
    const bool isOfThemes = root.toLower() == "themes";
    if (root == "productdescription")
        m_kind = PxFileKind::Product;
    else if (root == "userdefaults")
        m_kind = PxFileKind::UserDefaults;
    for (; reader.readNextStartElement(); reader.skipCurrentElement()) {
        const QStringView child = reader.name();
        const QString id = reader.attributes().value("id").toString();
        if (root == "producttypes" && child == QLatin1String("producttype"))
            m_kind = PxFileKind::ProductTypes;
        else if (root == "frames" && child == QLatin1String("frame") && !id.isEmpty())
            m_kind = PxFileKind::Frames;
        else if (isOfThemes && reader.attributes().hasAttribute("producttype"))
            m_kind = PxFileKind::Theme;
        if (m_kind == PxFileKind::Theme)
            m_names.append(id);
        else if (m_kind == PxFileKind::Product && child == QLatin1String("product"))
            m_names.append(reader.attributes().value("name").toString());
    }
}
