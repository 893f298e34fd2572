#include "diff/PxExportedCatalogue.h"

#include "report/PxNumberRanges.h"
#include "report/PxReport.h"

#include <description/PxProductTypeDescription.h>

#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/** What the first line says of how many objects of each type follow. */
constexpr struct
{
    const char *type;
    const char *count;
} typeRows[] = {
    {"productType", "productTypes"},
    {"product", "products"},
    {"legacyProduct", "legacyProducts"},
    {"theme", "themes"},
};

/** Waits for a whole line, for a pipe delivers parts; empty at the end. */
QByteArray nextLine(QIODevice *device)
{
    constexpr int most = PxExportedCatalogue::maximumLine + 1;
    QByteArray line = device->readLine(most + 1);
    while (!line.endsWith('\n') && line.size() < most && device->waitForReadyRead(-1))
        line += device->readLine(most + 1 - line.size());
    return line;
}

} // namespace

std::optional<PxProblem> PxExportedCatalogue::read(QIODevice *device)
{
    for (QByteArray line = nextLine(device); !line.isEmpty(); line = nextLine(device)) {
        if (const auto problem = addLine(line))
            return problem;
    }
    return problemOfEnd();
}

PxProblem PxExportedCatalogue::problem(const QString &text) const
{
    return {QString("\"%1\", line %2: %3").arg(m_name, QString::number(m_line), text)};
}

std::optional<PxProblem> PxExportedCatalogue::addLine(const QByteArray &line)
{
    ++m_line;
    if (line.size() > maximumLine)
        return problem(QString("the line is longer than %1 MiB").arg(maximumLine / 1024 / 1024));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    const QJsonObject object = document.object();
    const QString type = object["type"].toString();
    if (m_line == 1 && type != "catalogue")
        return problem(
            "this is neither a resource directory nor what \"pxcatalogue export\" writes");
    if (!document.isObject())
        return problem(error.error == QJsonParseError::NoError
                           ? "no JSON object"
                           : QString("no JSON at byte %1: %2; the export may be cut off")
                                 .arg(QString::number(error.offset), error.errorString()));
    return m_line == 1 ? readHeader(object) : addObject(type, object, line);
}

std::optional<PxProblem> PxExportedCatalogue::readHeader(const QJsonObject &header)
{
    if (header["format"] != PxReport::formatVersion || header["lengthUnit"] != PxReport::lengthUnit)
        return problem(QString("the export has another format than %1 with lengths in %2")
                           .arg(QString::number(PxReport::formatVersion), PxReport::lengthUnit));
    for (const auto &row : typeRows)
        m_missing[row.type] = header[QLatin1String(row.count)].toInt();
    return std::nullopt;
}

std::optional<PxProblem> PxExportedCatalogue::addObject(const QString &type,
                                                        const QJsonObject &object,
                                                        const QByteArray &line)
{
    if (--m_missing[type] < 0)
        return problem(
            QString("there is no type \"%1\", or the first line counts fewer of it").arg(type));
    if (type == "productType")
        return std::nullopt;
    const bool isTheme = type == "theme";
    const QJsonValue product = object["product"];
    const QString name = isTheme ? object["id"].toString() : product["name"].toString();
    if (name.isEmpty() && !isTheme)
        return problem("the product has no name");
    Objects &objects = isTheme ? m_themes : type == "product" ? m_products : m_legacyProducts;
    const Key key(name, isTheme ? m_themesWithId[name]++ : 0);
    if (objects.contains(key))
        return problem(QString("there is another product \"%1\" before").arg(name));
    if (!isTheme && !PxNumberRanges::numbers(object["pages"]["offered"].toString(),
                                             PxProductTypeDescription::maximumListedPages))
        return problem(QString("the page counts of \"%1\" cannot be read, or are more than 100 000")
                           .arg(name));
    objects.insert(key, {line, product["code"].toInt()});
    return std::nullopt;
}

std::optional<PxProblem> PxExportedCatalogue::problemOfEnd() const
{
    if (m_line == 0)
        return PxProblem{QString("\"%1\" is empty").arg(m_name)};
    for (auto missing = m_missing.begin(); missing != m_missing.end(); ++missing) {
        if (*missing > 0)
            return problem(QString("the export ends here, but %1 of type \"%2\" are missing")
                               .arg(QString::number(*missing), missing.key()));
    }
    return std::nullopt;
}
