#include "check/layout/PxPlacedImage.h"

#include "check/rules/PxElementReading.h"

#include <PxDirectoryConfig.h>

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *names[] = {"x", "y", "width", "height"};

/**
 * Whether the name promises a format, and the beginning of the file shows that it has none. What
 * else an application can paint is not known here.
 */
bool isNoPicture(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    constexpr const char *formats[] = {"png", "jpg", "jpeg", "gif", "bmp"};
    if (std::find(std::begin(formats), std::end(formats), suffix) == std::end(formats) ||
        !QImageReader::supportedImageFormats().contains(suffix))
        return false;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return QFileInfo(path).isReadable() && !reader.canRead();
}

} // namespace

void PxPlacedImage::checkFile(const QString &name, PxImageNames &images,
                              const PxReporter &report) const
{
    const QFileInfo file(PxDirectoryConfig::instance()->resource(name, false));
    if (name.isEmpty())
        return;
    if (file.isFile()) {
        if (isNoPicture(file.filePath()))
            report
                .add(PxTag::ImageMissing, m_element.rangeOf("image"),
                     file.size() == 0 ? "the file \"%1\" is empty"
                                      : "the file \"%1\" is no picture",
                     name)
                .now("the name is handed on as it is, and nothing is painted");
        return;
    }
    report
        .add(PxTag::ImageMissing, m_element.rangeOf("image"),
             file.exists() ? "\"%1\" is no regular file"
                           : "there is no image \"%1\" in the resources",
             name)
        .now("the name is handed on as it is, and nothing is painted")
        .hint([&] { return images.hint(name, file); });
}

bool PxPlacedImage::isRectanglePlain() const
{
    const PxElementReading reading(m_element);
    return std::all_of(std::begin(names), std::end(names), [&](const char *name) {
        return reading.isReadable(name) && !reading.isMisspelt(name);
    });
}

bool PxPlacedImage::isAnyNumberGiven() const
{
    return std::any_of(std::begin(names), std::end(names),
                       [this](const char *name) { return m_element.attribute(name); });
}

QString PxPlacedImage::fault() const
{
    const char *side = sideWithFault();
    if (!side)
        return "the rectangle leaves what can be counted";
    const PxSourceAttribute *attribute = m_element.attribute(side);
    return attribute ? QString("the %1 is %2").arg(side, attribute->value)
                     : QString("\"%1\" is missing").arg(side);
}

PxSourceRange PxPlacedImage::placeOfFault() const
{
    const char *side = sideWithFault();
    return side ? m_element.rangeOf(side) : m_element.nameRange;
}

/** The first side that is missing or not above 0; null if there is none. */
const char *PxPlacedImage::sideWithFault() const
{
    for (const char *name : {"width", "height"}) {
        if (m_element.value(name).toLongLong() <= 0)
            return name;
    }
    return nullptr;
}
