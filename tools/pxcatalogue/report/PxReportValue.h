#pragma once

#include "report/PxCatalogueKeywords.h"

#include <QJsonValue>
#include <QList>
#include <QSize>
#include <QString>

class PxMargins;
class QRect;

/** How a value of a report is written as text. JSON has the value itself. */
enum class PxReportFormat {
    Plain,  // texts, numbers, flags and lists of them
    Key,    // the same in a column that is not shortened to fit
    Name,   // a keyword of the files with its display name, when the library has one
    Length, // tenths of a millimetre, like all of the next three
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

/** The values of a report, as JSON; the text is made from that. */
class PxReportValue
{
public:
    /** Null for an invalid size. */
    static QJsonValue size(const QSize &size) { return PxReportValue::size(QSizeF(size)); }
    /** Rounded. The sum of two lengths may exceed an int. */
    static QJsonValue size(const QSizeF &size);
    static QJsonValue rect(const QRect &rect);
    static QJsonValue margins(const PxMargins &margins);
    /** Null without a keyword. */
    static QJsonValue name(const QString &keyword, const QString &displayName);
    /**
     * Keyword and display name of an attribute; null for a product without it.
     *
     * The display name is empty if the library has only its word for "unknown".
     */
    template <typename Wrapper>
    static QJsonValue name(const Wrapper &attribute)
    {
        const QString displayName = attribute.humanReadableName();
        const bool isUnknown = displayName == Wrapper().humanReadableName();
        return attribute.isNull() ? QJsonValue()
                                  : name(keywordOf(attribute), isUnknown ? QString() : displayName);
    }
    /** Null when none is offered. The increment is 0 with one page count, and null with two. */
    static QJsonValue pageCounts(const QList<int> &offered, int increment);
    static QJsonValue numbers(const QList<int> &numbers);

    /** Without unit; empty for null, an empty text and an empty list. */
    static QString text(const QJsonValue &value, PxReportFormat format);
    /** The unit of the text, with a blank before it; empty when it has none. */
    static QString unit(PxReportFormat format);
};
