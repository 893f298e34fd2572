#include "description/PxProductTypeDescriptionReader.h"

#include "description/PxProductTypeDescription.h"
#include "description/PxUserDefaults.h"
#include "values/PxParallelReading.h"
#include "values/PxUndecodableNames.h"

#include <PxMessage.h>
#include <PxXMLLoader.h>

#include <QDomElement>
#include <QFileInfo>
#include <QString>

#include <utility>
#include <vector>

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
    const QFileInfoList files =
        m_directory.entryInfoList(fileFilter(), QDir::Files, QDir::Unsorted);
    PxUndecodableNames::warn(m_directory.absolutePath());
    PxUserDefaults userDefaults;
    userDefaults.list();

    std::vector<Product> products(std::size_t(files.size()));
    const auto read = [&](int i) {
        Product &product = products[std::size_t(i)];
        product = readFile(files[i], userDefaults);
        return product.second;
    };
    // The first product creates what exists once, such as the table of product types, and its
    // messages come first.
    int first = 0;
    while (first < files.size() && !read(first++)) {
    }
    PxParallelReading::forEach(files.size() - first, [&](int i) { read(first + i); });

    QHash<PxProductType, PxProductTypeDescription *> descriptions;
    descriptions.reserve(files.size());
    for (const auto &[type, description] : products) {
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
    return readFile(file, PxUserDefaults());
}

PxProductTypeDescriptionReader::Product PxProductTypeDescriptionReader::readFile(
    const QFileInfo &file, const PxUserDefaults &userDefaults)
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
        PxMessageLogger(source, 79, function, pxLoggingCategory()).debug().noquote()
            << "PxProductTypeDescriptionReader::readFile the reason:" << error;
        return qMakePair(PxProductType(), static_cast<PxProductTypeDescription *>(nullptr));
    }
    const QDomElement product = root.firstChildElement(QStringLiteral("product"));
    const PxProductType type(product.attribute(QStringLiteral("name")));
    return qMakePair(type, new PxProductTypeDescription(product, userDefaults));
}
