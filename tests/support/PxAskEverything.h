#pragma once

#include <QStringList>
#include <QVector>

#include <limits>

class PxProductTypeDescription;
class PxTheme;

/** With what to ask: by default with arguments that an application should not pass, but may. */
struct PxArguments
{
    static constexpr int smallest = std::numeric_limits<int>::min();
    static constexpr int largest = std::numeric_limits<int>::max();

    QVector<int> pages = {smallest, -1, 0, 1, 26, largest};
    QVector<int> pageCounts = {smallest, -1, 0, 1, 26, largest};
    QStringList themes = {"normal", "hochzeit", ""};
    int productType = largest; ///< of a logo
    /** Lists are asked for page counts up to this one: long ones take their time. */
    int longestList = largest;
};

/**
 * All questions that a record answers, and its answers as one text: for tests that want to see it
 * survive them, answer the same again, or answer otherwise when a file changes.
 */
QString pxAskEverything(const PxProductTypeDescription &description,
                        const PxArguments &arguments = {});
QString pxAskEverything(const PxTheme &theme, const PxArguments &arguments = {});
