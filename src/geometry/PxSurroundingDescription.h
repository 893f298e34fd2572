#pragma once

#include "geometry/PxSurroundingKey.h"

#include <PxSurroundingType.h>

#include <QRect>
#include <QString>

class QDebug;
class QDomElement;

/**
 * An image that is painted around or over pages: a cover, a frame, the rim of a calendar or the
 * shade of a fold.
 */
class PXPRODUCTPROPERTIES_EXPORT PxSurroundingDescription
{
public:
    /** No surrounding. */
    PxSurroundingDescription() = default;
    /**
     * Reads a "surrounding" element. A FRAME applies to every ordinary page on any side, whatever
     * its element says.
     *
     * `undecodable` counts the undecodable page types of several elements, so that together they
     * log no more than one.
     */
    explicit PxSurroundingDescription(const QDomElement &surrounding, int *undecodable = nullptr);

    /** Whether its type is known. */
    bool isValid() const { return m_surroundingType != PxSurroundingTypeNone; }

    /** What the image shows; none by default. */
    PxSurroundingType surroundingType() const { return m_surroundingType; }
    /** The kinds of page that it is for; a missing attribute means all. */
    PxPageType pageTypes() const { return m_pageTypes; }
    /** The sides that it is for; a missing attribute means all. */
    PxPageAlignment alignments() const { return m_alignments; }
    /** The one page to which it is pinned; -1 for none. */
    int pageNr() const { return m_pageNr; }
    /** Whether it is painted above the page content, not below; true by default. */
    bool paintOnTop() const { return m_paintOnTop; }
    /** The name of the image resource. */
    QString image() const { return m_image; }
    /** The place of the image, in the unit of the product files; null if the file has none. */
    QRect imageRect() const { return m_imageRect; }
    /** Whether the image shows the shade of the binding fold; false by default. */
    bool hasBindingShade() const { return m_hasBindingShade; }

    /** Whether it may be painted on this page; see PxSurroundingKey::isOkayFor(). */
    bool isSuitable(const PxSurroundingKey &key) const;

    bool operator==(const PxSurroundingDescription &other) const;
    bool operator!=(const PxSurroundingDescription &other) const { return !(*this == other); }
    /** True if any field is less than that of the other; not a strict order. */
    bool operator<(const PxSurroundingDescription &other) const;

private:
    PxSurroundingType m_surroundingType = PxSurroundingTypeNone;
    PxPageType m_pageTypes;
    PxPageAlignment m_alignments = PxPageAlignmentNone;
    int m_pageNr = -1;
    bool m_paintOnTop = true;
    QString m_image;
    QRect m_imageRect;
    bool m_hasBindingShade = false;
};

Q_DECLARE_TYPEINFO(PxSurroundingDescription, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxSurroundingDescription &surrounding);
