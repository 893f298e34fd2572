#include "check/PxSourceParts.h"

#include <PxListParts.h>

namespace {

PxSourceRange trimmed(const QString &text, PxSourceRange range)
{
    while (range.begin < range.end && text.at(range.begin).isSpace())
        ++range.begin;
    while (range.begin < range.end && text.at(range.end - 1).isSpace())
        --range.end;
    return range;
}

/** `value` is what the library reads of the source text in `range`. */
QVector<PxSourcePart> split(const QString &source, const PxSourceRange &range, const QString &value)
{
    QVector<PxSourcePart> parts;
    pxForEachPart(value, [&](QStringView part) { parts.append({part.toString(), range, range}); });
    const QString written = source.mid(range.begin, range.end - range.begin);
    const bool isPlain = !written.contains(QLatin1Char('&')) && !written.contains(QLatin1Char('<'));
    if (!isPlain || written.count(QLatin1Char(',')) != parts.size() - 1)
        return parts;
    int begin = range.begin;
    for (PxSourcePart &part : parts) {
        const int comma = written.indexOf(QLatin1Char(','), begin - range.begin);
        const int end = comma < 0 ? range.end : range.begin + comma;
        part.whole = {begin, end};
        part.range = trimmed(source, part.whole);
        begin = end + 1;
    }
    return parts;
}

} // namespace

QVector<PxSourcePart> PxSourceParts::ofAttribute(const PxCheckedFile &file,
                                                 const PxSourceElement &element,
                                                 const QString &name)
{
    const PxSourceAttribute *attribute = element.attribute(name);
    if (!attribute)
        return {};
    return split(file.source().text(), attribute->valueRange, attribute->value);
}

QVector<PxSourcePart> PxSourceParts::ofText(const PxCheckedFile &file,
                                            const PxSourceElement &element)
{
    return split(file.source().text(), element.textRange(), element.dom.text());
}
