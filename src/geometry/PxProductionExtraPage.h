#pragma once

#include "PxProductPropertiesExport.h"

#include <QString>

class QDebug;

/** A ready-made PDF page that production inserts. */
class PXPRODUCTPROPERTIES_EXPORT PxProductionExtraPage
{
public:
    PxProductionExtraPage() = default;
    /** Everything is kept as it is. */
    PxProductionExtraPage(const QString &filename, const QString &templateType, int targetLayer);

    /** The name of the PDF file; empty by default. */
    QString filename() const { return m_filename; }
    /** The kind of template, as the file states it; empty by default. */
    QString templateType() const { return m_templateType; }
    /** The layer of the target page on which this is placed; 0 by default. */
    int targetLayer() const { return m_targetLayer; }

    bool operator==(const PxProductionExtraPage &other) const;
    bool operator!=(const PxProductionExtraPage &other) const { return !(*this == other); }

private:
    QString m_filename;
    QString m_templateType;
    int m_targetLayer = 0;
};

Q_DECLARE_TYPEINFO(PxProductionExtraPage, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductionExtraPage &page);
