#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

/** The side of a spread on which a page lies, or the place of an item on a page; a set of flags. */
enum PxPageAlignment : int {
    PxPageAlignmentNone = 0,
    PxPageAlignmentLeft = 1,
    PxPageAlignmentRight = 2,
    PxPageAlignmentMiddle = 4,
    PxPageAlignmentFullPage = 8,
    PxPageAlignmentTop = 16,
    PxPageAlignmentBottom = 32,
    PxPageAlignmentCenter = 64,
    PxPageAlignmentAll = PxPageAlignmentLeft | PxPageAlignmentRight | PxPageAlignmentMiddle |
                         PxPageAlignmentFullPage | PxPageAlignmentTop | PxPageAlignmentBottom |
                         PxPageAlignmentCenter,
    /** Every alignment that a single page can have: all but the whole spread. */
    PxPageAlignmentSinglePages = PxPageAlignmentAll & ~PxPageAlignmentFullPage,
};

namespace EnumHelper {

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxPageAlignment> globalPageAlignmentKeywords[] = {
    {"left", PxPageAlignmentLeft},     {"leftpage", PxPageAlignmentLeft},
    {"cover", PxPageAlignmentLeft},    {"coverpage", PxPageAlignmentLeft},
    {"right", PxPageAlignmentRight},   {"rightpage", PxPageAlignmentRight},
    {"middle", PxPageAlignmentMiddle}, {"fullpage", PxPageAlignmentFullPage},
    {"top", PxPageAlignmentTop},       {"bottom", PxPageAlignmentBottom},
    {"center", PxPageAlignmentCenter},
};

inline QHash<QString, PxPageAlignment> initGlobalPageAlignmentStringMap()
{
    return keywordMap(globalPageAlignmentKeywords);
}

inline const QHash<QString, PxPageAlignment> &globalMapPageAlignmentString =
    *new QHash<QString, PxPageAlignment>(initGlobalPageAlignmentStringMap());
inline const QString &globalPageAlignmentDefaultKey = *new QString(QStringLiteral("unknown"));
/** An unknown alignment is a real side on purpose: a page always lies somewhere. */
inline constexpr PxPageAlignment globalPageAlignmentDefaultValue = PxPageAlignmentLeft;

/**
 * The alignments of a comma-separated list, one per part and in its order, in any case.
 *
 * A part that is not a keyword, even an empty one, gives the default alignment. For applications;
 * the library itself needs only the union of such a list.
 */
inline QList<PxPageAlignment> decodePageAlignmentAsList(const QString &alignments)
{
    QList<PxPageAlignment> list;
    pxForEachPart(alignments, [&list](QStringView part) {
        list.append(decodeKeyword(part.toString(), globalMapPageAlignmentString,
                                  globalPageAlignmentDefaultValue));
    });
    return list;
}

} // namespace EnumHelper
