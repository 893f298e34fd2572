#include "description/PxProductTypeDescriptionReader.h"

#include "description/PxProductTypeDescription.h"
#include "values/PxUndecodableNames.h"

#include <PxMessage.h>
#include <PxXMLLoader.h>

#include <QDomElement>
#include <QFileInfo>
#include <QString>

#include <utility>

PxProductTypeDescriptionReader::PxProductTypeDescriptionReader(const QDir &directory)
    : m_directory(directory)
{}

PxProductTypeDescriptionReader::PxProductTypeDescriptionReader(
    const PxProductTypeDescriptionReader &other) = default;
PxProductTypeDescriptionReader &PxProductTypeDescriptionReader::operator=(
    const PxProductTypeDescriptionReader &other) = default;
PxProductTypeDescriptionReader::~PxProductTypeDescriptionReader() = default;

QStringList PxProductTypeDescriptionReader::fileFilter()
{
    return {QStringLiteral("*.xml")};
}

QHash<PxProductType, PxProductTypeDescription *> PxProductTypeDescriptionReader::readDir()
{
    QHash<PxProductType, PxProductTypeDescription *> descriptions;
    const QFileInfoList files =
        m_directory.entryInfoList(fileFilter(), QDir::Files, QDir::Unsorted);
    PxUndecodableNames::warn(m_directory.absolutePath());
    for (const QFileInfo &file : files) {
        const auto [type, description] = readFile(file);
        // Descriptions that cannot be reached are freed: those of unknown products, and that of an
        // earlier file for the same product.
        if (type.isValid())
            delete std::exchange(descriptions[type], description);
        else
            delete description;
    }
    return descriptions;
}

QPair<PxProductType, PxProductTypeDescription *> PxProductTypeDescriptionReader::readFile(
    const QFileInfo &file)
{
    QString error;
    const QDomElement root = PxXMLLoader::loadDocumentElement(file, &error);
    if (root.isNull()) {
        constexpr const char *source = "PxProductTypeDescriptionReader";
        constexpr const char *function =
            "QPair<PxProductType, PxProductTypeDescription*> "
            "PxProductTypeDescriptionReader::readFile(const QFileInfo&)";
        PxMessageLogger(source, 78, function).warning()
            << "PxProductTypeDescriptionReader::readFile could not open" << file.absoluteFilePath();
        PxMessageLogger(source, 79, function).debug().noquote()
            << "PxProductTypeDescriptionReader::readFile the reason:" << error;
        return qMakePair(PxProductType(), static_cast<PxProductTypeDescription *>(nullptr));
    }
    const QDomElement product = root.firstChildElement(QStringLiteral("product"));
    const PxProductType type(product.attribute(QStringLiteral("name")));
    return qMakePair(type, new PxProductTypeDescription(product));
}
