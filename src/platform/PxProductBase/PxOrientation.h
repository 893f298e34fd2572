#pragma once

#include "PxProductBaseExport.h"

#include <PxEnumWrapper.h>

#include <QMetaType>
#include <QString>

class QSizeF;

/** The shape of a page or a template; a set of flags. */
enum PxOrientationEnum : int {
    PxOrientationPortrait = 1,          ///< higher than wide
    PxOrientationLandscape = 2,         ///< wider than high
    PxOrientationQuadratic = 4,         ///< a square
    PxOrientationPanorama = 8,          ///< very wide
    PxOrientationPortraitPanorama = 16, ///< very high
    PxOrientationRound = 32,            ///< a circle
    /** Every shape. */
    PxOrientationAll = PxOrientationPortrait | PxOrientationLandscape | PxOrientationQuadratic |
                       PxOrientationPanorama | PxOrientationPortraitPanorama | PxOrientationRound,
};

extern template class PXPRODUCTBASE_EXPORT PxEnumWrapper<PxOrientationEnum>;

/** The shape of a page or a template as it is read from the files; 0 is unknown. */
class PXPRODUCTBASE_EXPORT PxOrientation : public PxEnumWrapper<PxOrientationEnum>
{
public:
    PxOrientation() = default;
    /** Any value is kept, even one without an enumerator. */
    PxOrientation(PxOrientationEnum orientation) : PxEnumWrapper(orientation) {}
    PxOrientation(const PxOrientation &other) = default;
    PxOrientation &operator=(const PxOrientation &other) = default;
    /** The union of a comma-separated keyword list; other words add nothing. */
    PxOrientation(const QString &keywords);
    /**
     * The same; if the keywords give nothing, the shape of the size: portrait, landscape or
     * quadratic, and 0 for a size without an area.
     */
    PxOrientation(const QString &keywords, const QSizeF &size);
    ~PxOrientation() override;

    void fillTable(PxEnumToStringTable<PxOrientationEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxOrientation, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxOrientation)
