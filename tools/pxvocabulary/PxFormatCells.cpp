#include "PxFormatCells.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

/** Names in quotes are code in the documentation. */
QString markdown(const char *plain)
{
    return QString::fromUtf8(plain).replace(QLatin1Char('"'), QLatin1Char('`'));
}

bool isNumberOrFlag(PxValueType type)
{
    return type == PxValueType::Integer || type == PxValueType::Length ||
           type == PxValueType::Boolean;
}

} // namespace

QString PxFormatCells::type(const PxAttributeRow &row)
{
    constexpr struct
    {
        PxValueType type;
        const char *name;
    } names[] = {
        {PxValueType::Integer, "int"},
        {PxValueType::Length, "int"},
        {PxValueType::Boolean, "bool"},
        {PxValueType::Text, "text"},
        {PxValueType::TextList, "text list"},
        {PxValueType::Path, "path, read as lower case"},
        {PxValueType::DateTime, "date and time"},
        {PxValueType::Keyword, "keyword"},
        {PxValueType::KeywordList, "keyword list"},
        {PxValueType::OneKeyword, "one keyword"},
        {PxValueType::PageRange, "page or range"},
        {PxValueType::RectanglePart, "rectangle"},
        {PxValueType::ProductName, "product name, any case"},
    };
    if (row.cells.type)
        return QString::fromUtf8(row.cells.type);
    const auto *found = std::find_if(std::begin(names), std::end(names),
                                     [&](const auto &name) { return name.type == row.type; });
    return QLatin1String(found->name);
}

QString PxFormatCells::absent(const PxAttributeRow &row)
{
    if (row.cells.absent)
        return QString::fromUtf8(row.cells.absent);
    QStringList parts;
    if (row.type == PxValueType::RectanglePart)
        parts.append(QStringLiteral("none"));
    else if (row.defaultText && *row.defaultText)
        parts.append((isNumberOrFlag(row.type) ? QStringLiteral("%1") : QStringLiteral("`%1`"))
                         .arg(QString::fromUtf8(row.defaultText)));
    if (row.consequence)
        parts.append(markdown(row.consequence));
    return parts.isEmpty() ? QStringLiteral("empty") : parts.join(QLatin1String(": "));
}

QString PxFormatCells::absent(const PxElementRow &row)
{
    return row.cells.absent ? QString::fromUtf8(row.cells.absent) : markdown(row.absent);
}
