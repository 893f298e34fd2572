#pragma once

#include "PxKeyword.h"

#include <QList>

/** Where on a spread a page lies, or something on a page; a set of flags. */
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
    /** Where single pages lie: not the whole spread. */
    PxPageAlignmentSinglePages = PxPageAlignmentAll & ~PxPageAlignmentFullPage,
};

namespace EnumHelper {

inline QHash<QString, PxPageAlignment> initGlobalPageAlignmentStringMap()
{
    constexpr PxKeyword<PxPageAlignment> keywords[] = {
        {"left", PxPageAlignmentLeft},         {"leftpage", PxPageAlignmentLeft},
        {"right", PxPageAlignmentRight},       {"rightpage", PxPageAlignmentRight},
        {"top", PxPageAlignmentTop},           {"bottom", PxPageAlignmentBottom},
        {"center", PxPageAlignmentCenter},     {"middle", PxPageAlignmentMiddle},
        {"fullpage", PxPageAlignmentFullPage}, {"cover", PxPageAlignmentLeft},
        {"coverpage", PxPageAlignmentLeft},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxPageAlignment> &globalMapPageAlignmentString =
    *new QHash<QString, PxPageAlignment>(initGlobalPageAlignmentStringMap());
inline const QString &globalPageAlignmentDefaultKey = *new QString(QStringLiteral("unknown"));
/** An unknown alignment is a real side on purpose: a page always lies somewhere. */
inline constexpr PxPageAlignment globalPageAlignmentDefaultValue = PxPageAlignmentLeft;

/**
 * The alignments of a comma-separated list, one per part and in its order, in any case.
 *
 * A part that is no keyword, an empty one too, gives the default alignment. For applications; the
 * library itself needs only the union of such a list.
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
