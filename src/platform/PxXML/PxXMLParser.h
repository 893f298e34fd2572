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
     * A point in time as `yyyyMMddHHmm` or in the long form of ISO 8601, `yyyy-MM-ddTHH:mm:ss`
     * with or without seconds and a time zone, or the date alone; answered in local time.
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
