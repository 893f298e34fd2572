#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

/** The side of a spread on which a page lies, or the place of an item on a page; a set of flags. */
enum PxPageAlignment : int {
    PxPageAlignmentNone = 0,     ///< no position
    PxPageAlignmentLeft = 1,     ///< the left page of a spread
    PxPageAlignmentRight = 2,    ///< the right page of a spread
    PxPageAlignmentMiddle = 4,   ///< the spine of pages side by side
    PxPageAlignmentFullPage = 8, ///< the whole spread
    PxPageAlignmentTop = 16,     ///< the upper page of a spread
    PxPageAlignmentBottom = 32,  ///< the lower page of a spread
    PxPageAlignmentCenter = 64,  ///< the spine of pages one above the other
    /** Every alignment. */
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

/** Makes the map below. */
inline QHash<QString, PxPageAlignment> initGlobalPageAlignmentStringMap()
{
    return keywordMap(globalPageAlignmentKeywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxPageAlignment> &globalMapPageAlignmentString =
    *new QHash<QString, PxPageAlignment>(initGlobalPageAlignmentStringMap());
/** The text that is written for a value without a keyword. */
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
