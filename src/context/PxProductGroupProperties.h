#pragma once

#include "PxProductPropertiesExport.h"
#include "values/PxFotoPaperType.h"

#include <QColor>
#include <QString>

class QDebug;

/**
 * The settings that apply to all products of a group, for example to all photo prints of an order.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductGroupProperties
{
public:
    /** The defaults. The name of the photo index contains today's date. */
    PxProductGroupProperties();

    /** The name under which the picture overview is filed. */
    QString fotoIndex() const { return m_fotoIndex; }
    /** The finish of the paper; unknown by default. */
    PxFotoPaperType paperType() const { return m_paperType; }
    /** The colour of the border around each photo; invalid by default. */
    QColor borderColor() const { return m_borderColor; }
    /** Whether the pictures are copied to a web album, too; false by default. */
    bool copyToWebAlbum() const { return m_copyToWebAlbum; }

    ///@{
    /** Sets the value; anything is kept as it is. */
    void setFotoIndex(const QString &fotoIndex);
    void setPaperType(PxFotoPaperType paperType);
    void setBorderColor(const QColor &borderColor);
    void setCopyToWebAlbum(bool copyToWebAlbum);
    ///@}

private:
    QString m_fotoIndex;
    PxFotoPaperType m_paperType = PxFotoPaperTypeUnknown;
    QColor m_borderColor;
    bool m_copyToWebAlbum = false;
};

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxProductGroupProperties &properties);
