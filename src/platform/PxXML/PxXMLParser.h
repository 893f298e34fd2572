#pragma once

#include "PxXMLExport.h"

#include <QDateTime>
#include <QDomElement>
#include <QRect>
#include <QSize>
#include <QString>

/** Reads attributes. Reading never fails: a missing or invalid attribute gives the default. */
class PXXML_EXPORT PxXMLParser
{
public:
    /** The unchanged text; the default if it is missing or, without `acceptEmpty`, empty. */
    static QString attribute(const QDomElement &element, const QString &name,
                             const QString &defaultValue, bool acceptEmpty);
    /**
     * A whole number of 32 bits, in base 10, with white space around it ignored. Anything else,
     * such as a fraction or a number out of range, gives the default.
     */
    static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    /** `true`, `1`, `yes`, `on` or `false`, `0`, `no`, `off`, in any case and trimmed. */
    static bool boolAttribute(const QDomElement &element, const QString &name, bool defaultValue);
    /**
     * A point in time, returned in local time: `yyyyMMddHHmm`, or the extended form of ISO 8601,
     * either a date alone (`2030-03-31`, which means its first moment) or a date with a time
     * (`2030-03-31T02:30`), which may have seconds, a fraction of them and a time zone (`Z`,
     * `+02:00`, `+02`). White space around it is ignored; no other text is accepted.
     *
     * Without a time zone the text is local time. A time that the clocks skip is moved on by the
     * length of the skip, so that a file can be read in every time zone. A time that the clocks
     * repeat may give either moment. After 2037 Qt repeats the clock changes of 2037.
     *
     * An unreadable text counts as the default text. If that is unreadable, too, the answer is an
     * invalid time.
     */
    static QDateTime dateTimeAttribute(const QDomElement &element, const QString &name,
                                       const QString &defaultText);

    /**
     * The attributes `x` and `y` (each 0 unless it is a number), `width` and `height`.
     *
     * QRect() if `width` or `height` is not a number, or if an edge does not fit into 32 bits. A
     * size of 0 or less is kept as it is.
     */
    static QRect readRect(const QDomElement &element);
    /** The same for the attributes of an element. */
    static QRect readRect(const QDomNamedNodeMap &attributes);
    /** The attributes `width` and `height`, each -1 unless it is a number. */
    static QSize readSize(const QDomElement &element);
};
