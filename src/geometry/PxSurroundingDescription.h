#pragma once

#include "geometry/PxSurroundingKey.h"

#include <PxSurroundingType.h>

#include <QRect>
#include <QString>

class QDebug;
class QDomElement;

/** An image that is painted around or over pages: a cover, a frame, a calendar rim, a shade. */
class PXPRODUCTPROPERTIES_EXPORT PxSurroundingDescription
{
public:
    /** No surrounding. */
    PxSurroundingDescription() = default;
    /**
     * Reads a "surrounding" element.
     *
     * A FRAME is for every ordinary page of any side, whatever its element says. `undecodable`
     * counts the undecodable page types of several elements, which together log no more messages
     * than one.
     */
    explicit PxSurroundingDescription(const QDomElement &surrounding, int *undecodable = nullptr);

    bool isValid() const { return m_surroundingType != PxSurroundingTypeNone; }

    PxSurroundingType surroundingType() const { return m_surroundingType; }
    PxPageType pageTypes() const { return m_pageTypes; }
    PxPageAlignment alignments() const { return m_alignments; }
    /** The one page that it is pinned to; -1 for none. */
    int pageNr() const { return m_pageNr; }
    /** Painted above the page content, not below. */
    bool paintOnTop() const { return m_paintOnTop; }
    /** The name of the image resource. */
    QString image() const { return m_image; }
    /** Where the image goes, in the unit of the product files; null when the file does not say. */
    QRect imageRect() const { return m_imageRect; }
    /** The image shows the shade of the binding fold. */
    bool hasBindingShade() const { return m_hasBindingShade; }

    bool isSuitable(const PxSurroundingKey &key) const;

    bool operator==(const PxSurroundingDescription &other) const;
    bool operator!=(const PxSurroundingDescription &other) const { return !(*this == other); }
    /** True when any one field is less than the other's; no strict order. */
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
