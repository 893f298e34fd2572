#pragma once

#include <geometry/PxPageContext.h>

#include <QStringList>
#include <QVector>

#include <limits>

class PxIndirectProductDescription;
class PxProductContext;
class PxProductType;
class PxProductTypeConfigRegistry;
class PxProductTypeDescription;
class PxTheme;

/** With what to ask: by default with arguments that an application should not pass, but may. */
struct PxArguments
{
    static constexpr int smallest = std::numeric_limits<int>::min();
    static constexpr int largest = std::numeric_limits<int>::max();

    QVector<int> pages = {smallest, -1, 0, 1, 26, largest};
    QVector<int> pageCounts = {smallest, -1, 0, 1, 26, largest};
    QVector<PxPageContext> kinds = allKinds(); ///< of pages
    QStringList themes = {"normal", "hochzeit", ""};
    int productType = largest; ///< of a logo
    /** Lists are asked for page counts up to this one: long ones take their time. */
    int longestList = largest;

    static QVector<PxPageContext> allKinds();
};

/**
 * All questions that a class answers, each in a line "asked, with: question(): answer". For tests
 * that want to see each answer, to see the object survive them, answer the same again, or answer
 * otherwise when a file changes. A test holds the questions against the headers.
 */
QString pxAskEverything(const PxProductTypeDescription &asked, const PxArguments &arguments = {});
QString pxAskEverything(const PxProductTypeConfigRegistry &asked, const PxProductType &type,
                        const PxArguments &arguments = {});
QString pxAskEverything(const PxProductContext &asked, const PxArguments &arguments = {});
QString pxAskEverything(const PxIndirectProductDescription &asked);
QString pxAskEverything(const PxTheme &asked, const PxArguments &arguments = {});
