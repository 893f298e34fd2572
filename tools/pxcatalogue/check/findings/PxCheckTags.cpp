#include "check/findings/PxCheckTags.h"

#include "check/findings/PxCheckTagRows.h"

#include <algorithm>

namespace {

bool isBefore(const PxCheckTag *tag, const QString &name)
{
    return QLatin1String(tag->name) < name;
}

} // namespace

const QVector<const PxCheckTag *> &PxCheckTags::all()
{
    static const QVector<const PxCheckTag *> ourTags = [] {
        QVector<const PxCheckTag *> tags;
        for (const PxRows<PxCheckTag> &rows :
             {fileTagRows(), formatTagRows(), productTagRows(), layoutTagRows(), designTagRows(),
              catalogueTagRows(), themeTagRows()}) {
            for (const PxCheckTag &tag : rows)
                tags.append(&tag);
        }
        std::sort(tags.begin(), tags.end(), [](const PxCheckTag *a, const PxCheckTag *b) {
            return qstrcmp(a->name, b->name) < 0;
        });
        return tags;
    }();
    return ourTags;
}

QStringList PxCheckTags::names()
{
    QStringList names;
    for (const PxCheckTag *tag : all())
        names.append(QLatin1String(tag->name));
    return names;
}

/** PxTag and all() have the same order. */
const PxCheckTag &PxCheckTags::of(PxTag tag)
{
    return *all().at(int(tag));
}

const PxCheckTag *PxCheckTags::find(const QString &name)
{
    const auto found = std::lower_bound(all().begin(), all().end(), name, isBefore);
    return found == all().end() || name != QLatin1String((*found)->name) ? nullptr : *found;
}

QVector<PxSeverity> PxCheckTags::severities()
{
    return {PxSeverity::Error, PxSeverity::Warning, PxSeverity::Info, PxSeverity::Pedantic};
}

const char *PxCheckTags::severityName(PxSeverity severity)
{
    static constexpr const char *names[] = {"pedantic", "info", "warning", "error"};
    return names[int(severity)];
}
