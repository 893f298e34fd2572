#include "format/PxFormat.h"

#include "format/PxFormatFiles.h"
#include "format/PxKeywordRows.h"

#include <algorithm>

namespace {

/** Compares letter by letter, because nearly all names differ within the first few. */
bool isNamed(const char *rowName, const QString &name)
{
    for (const QChar character : name) {
        if (*rowName == '\0' || character != QLatin1Char(*rowName))
            return false;
        ++rowName;
    }
    return *rowName == '\0';
}

} // namespace

const PxElementRow &PxFormat::root(PxFileKind kind)
{
    switch (kind) {
    case PxFileKind::Theme:
        return themeFileRow;
    case PxFileKind::UserDefaults:
        return userDefaultsFileRow;
    case PxFileKind::ProductTypes:
        return productTypesFileRow;
    case PxFileKind::Frames:
        return framesFileRow;
    case PxFileKind::Product:
        break;
    }
    return productFileRow;
}

const PxElementRow *PxFormat::find(PxFileKind kind, const QString &path)
{
    const PxElementRow *row = &root(kind);
    const QStringList names = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (int i = 0; i < names.size() && row; ++i)
        row = child(*row, names[i]);
    return row;
}

const PxElementRow *PxFormat::child(const PxElementRow &parent, const QString &name)
{
    const auto *found =
        std::find_if(parent.children.begin(), parent.children.end(), [&](const PxElementRow &row) {
            return row.occurrence == PxOccurrence::AnyName || isNamed(row.name, name);
        });
    return found == parent.children.end() ? nullptr : found;
}

bool PxFormat::isChildName(const PxElementRow &parent, const QString &name)
{
    return std::any_of(parent.children.begin(), parent.children.end(),
                       [&](const PxElementRow &row) { return isNamed(row.name, name); });
}

const PxAttributeRow *PxFormat::attribute(const PxElementRow &element, const QString &name)
{
    const auto *found =
        std::find_if(element.attributes.begin(), element.attributes.end(),
                     [&](const PxAttributeRow &row) { return isNamed(row.name, name); });
    return found == element.attributes.end() ? nullptr : found;
}

QStringList PxFormat::childNames(const PxElementRow &parent)
{
    QStringList names;
    for (const PxElementRow &row : parent.children)
        names.append(QLatin1String(row.name));
    return names;
}

QStringList PxFormat::attributeNames(const PxElementRow &element)
{
    QStringList names;
    for (const PxAttributeRow &row : element.attributes)
        names.append(QLatin1String(row.name));
    return names;
}

const PxKeywordSetRow &PxFormat::keywords(PxKeywordSet set)
{
    const PxRows<PxKeywordSetRow> sets = keywordSetRows();
    return *std::find_if(sets.begin(), sets.end(),
                         [set](const PxKeywordSetRow &row) { return row.set == set; });
}

QStringList PxFormat::keywordNames(PxKeywordSet set)
{
    QStringList names;
    for (const PxKeywordTableRow &row : keywords(set).keywords)
        names.append(row.keyword);
    return names;
}

QStringList PxFormat::mainKeywordNames(PxKeywordSet set)
{
    QStringList names;
    for (const PxKeywordTableRow &row : keywords(set).keywords) {
        if (!row.meaning.isNull())
            names.append(row.keyword);
    }
    return names;
}

bool PxFormat::isKeyword(PxKeywordSet set, const QString &word)
{
    return keywords(set).isKeyword(word);
}

int PxFormat::decode(PxKeywordSet set, const QString &text)
{
    return keywords(set).decode(text);
}

QString PxFormat::decoded(PxKeywordSet set, const QString &text)
{
    return encode(set, decode(set, text));
}

QString PxFormat::encode(PxKeywordSet set, int value)
{
    const PxKeywordSetRow &table = keywords(set);
    if (value == table.defaultValue)
        return QString::fromUtf8(table.defaultText);
    QStringList bits;
    for (const PxKeywordTableRow &row : table.keywords) {
        if (row.value == value)
            return row.keyword;
        const bool isBit = row.value > 0 && (row.value & (row.value - 1)) == 0;
        if (isBit && (value & row.value) != 0 && !row.meaning.isNull())
            bits.append(row.keyword);
    }
    return bits.join(QLatin1String(", "));
}
