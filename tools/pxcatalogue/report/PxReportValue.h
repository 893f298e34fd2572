#pragma once

#include "format/PxCatalogueKeywords.h"

#include <QJsonValue>
#include <QList>
#include <QSize>
#include <QString>

class PxMargins;
class QRect;

/** How a value of a report is written as text. JSON contains the value itself. */
enum class PxReportFormat {
    Plain,  // texts, numbers, flags and lists of them
    Key,    // the same in a column that is not shortened to fit
    Name,   // a keyword of the files with its display name, if the library has one
    Length, // in tenths of a millimetre, like the next three
    Size,
    Margins, // top, bottom, left, right
    Rect,
    Area,
    Points,
    Pixels, // a size
    PageCounts,
    PageNumbers, // a list; runs are written as "3-7"
    CountOrAll,  // a list; an empty one means all
    JsonOnly,
};

/** Makes the values of a report, as JSON, and the texts for them. */
class PxReportValue
{
public:
    /** Null for an invalid size. */
    static QJsonValue size(const QSize &size) { return PxReportValue::size(QSizeF(size)); }
    /** Rounds to whole numbers. The sum of two lengths may exceed an int. */
    static QJsonValue size(const QSizeF &size);
    static QJsonValue rect(const QRect &rect);
    static QJsonValue margins(const PxMargins &margins);
    /** Null if the keyword is empty. */
    static QJsonValue name(const QString &keyword, const QString &displayName);
    /**
     * The keyword and display name of an attribute; null if the product does not have it.
     *
     * The display name is empty if the library only has its text for unknown values.
     */
    template <typename Wrapper>
    static QJsonValue name(const Wrapper &attribute)
    {
        const QString displayName = attribute.humanReadableName();
        const bool isUnknown = displayName == Wrapper().humanReadableName();
        return attribute.isNull() ? QJsonValue()
                                  : name(keywordOf(attribute), isUnknown ? QString() : displayName);
    }
    /** Null if none is offered. The increment is 0 for one page count, and null for two. */
    static QJsonValue pageCounts(const QList<int> &offered, int increment);
    static QJsonValue numbers(const QList<int> &numbers);

    /** The text of a value, without unit; empty for null, an empty text or an empty list. */
    static QString text(const QJsonValue &value, PxReportFormat format);
    /** The unit of the text, after a blank; empty if it has none. */
    static QString unit(PxReportFormat format);
};
