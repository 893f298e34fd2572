#pragma once

#include <limits>

class PxProductTypeDescription;
class PxTheme;
class QString;

/**
 * Asks a record everything it can answer, with arguments an application should not, but may pass:
 * for tests that want to see it survive, or answer the same again: any int may be asked.
 * `longestList` is the largest page count for which lists are asked, which take their time.
 */
QString pxAskEverything(const PxProductTypeDescription &description,
                        int longestList = std::numeric_limits<int>::max());
QString pxAskEverything(const PxTheme &theme);
