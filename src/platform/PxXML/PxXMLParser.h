#pragma once

#include "PxXMLExport.h"

#include <QDateTime>
#include <QDomElement>
#include <QRect>
#include <QSize>
#include <QString>

/** Reads attributes. Reading never fails: what is missing or broken gives the default. */
class PXXML_EXPORT PxXMLParser
{
public:
    /** The text as it stands; the default when missing or, without `acceptEmpty`, when empty. */
    static QString attribute(const QDomElement &element, const QString &name,
                             const QString &defaultValue, bool acceptEmpty);
    /**
     * A whole number of 32 bits, in base 10, with white space around it ignored; anything else, a
     * fraction or a number out of range, gives the default.
     */
    static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    /** `true`, `1`, `yes`, `on` or `false`, `0`, `no`, `off`, in any case and trimmed. */
    static bool boolAttribute(const QDomElement &element, const QString &name, bool defaultValue);
    /**
     * A point in time, answered in local time: `yyyyMMddHHmm`, or the extended form of ISO 8601, a
     * date alone (`2030-03-31`, its first moment) or with a time (`2030-03-31T02:30`), which may
     * have seconds, a fraction of them and a time zone (`Z`, `+02:00`, `+02`). Nothing else may
     * stand before or behind it but white space.
     *
     * Without a time zone it is local time. A time that the clocks skip is as many minutes after
     * the skip begins: no time zone makes a file unreadable. Of one that they repeat either may
     * be meant. After 2037 Qt knows no other changes of the clocks than those of 2037.
     *
     * An unreadable text counts as the default text; when that is unreadable too, the answer is
     * an invalid time.
     */
    static QDateTime dateTimeAttribute(const QDomElement &element, const QString &name,
                                       const QString &defaultText);

    /**
     * The attributes `x`, `y` (each 0 unless it is a number), `width` and `height`.
     *
     * QRect() when one of the latter is no number or when an edge leaves 32 bits. A size that is
     * not positive is kept as it is.
     */
    static QRect readRect(const QDomElement &element);
    static QRect readRect(const QDomNamedNodeMap &attributes);
    /** The attributes `width` and `height`, each -1 unless it is a number. */
    static QSize readSize(const QDomElement &element);
};
