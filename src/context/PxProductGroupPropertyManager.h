#pragma once

#include "context/PxProductGroupProperties.h"

#include <PxProductGroup.h>

#include <QColor>
#include <QMap>
#include <QString>

/**
 * The properties of each product group, created with defaults on first use.
 *
 * The instance is created on first use, from any thread; the properties belong to the thread of the
 * user interface.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductGroupPropertyManager
{
public:
    /** Never null, never destroyed. */
    static PxProductGroupPropertyManager *instance();

    /** Never null; owned by the manager and valid until the process ends. */
    PxProductGroupProperties *productGroupProperties(const PxProductGroup &group);

    ///@{
    /** The function of this name of the PxProductGroupProperties of the group. */
    QString fotoIndex(const PxProductGroup &group);
    PxFotoPaperType paperType(const PxProductGroup &group);
    QColor borderColor(const PxProductGroup &group);
    bool copyToWebAlbum(const PxProductGroup &group);

    void setFotoIndex(const PxProductGroup &group, const QString &fotoIndex);
    void setPaperType(const PxProductGroup &group, PxFotoPaperType paperType);
    void setBorderColor(const PxProductGroup &group, const QColor &borderColor);
    void setCopyToWebAlbum(const PxProductGroup &group, bool copyToWebAlbum);
    ///@}

private:
    PxProductGroupPropertyManager() = default;
    Q_DISABLE_COPY(PxProductGroupPropertyManager)

    QMap<PxProductGroup, PxProductGroupProperties *> m_properties;
};
