#pragma once

#include "themes/PxDefaultThematicCategories.h"
#include "themes/PxKeyAccountNumberList.h"

#include <PxEmptyMeansAllSet.h>
#include <PxProductGroup.h>
#include <PxProductType.h>

#include <QDateTime>
#include <QImage>
#include <QMap>
#include <QPair>
#include <QRect>
#include <QSharedData>
#include <QString>

/** The record that copies of a PxTheme share; applications use PxTheme, which documents it. */
class PXPRODUCTPROPERTIES_EXPORT PxThemeConfig : public QSharedData
{
public:
    /** The record of the void theme. */
    PxThemeConfig();
    /** The order of the parameters is not that of the PxTheme constructor. */
    PxThemeConfig(const QString &id, const PxProductGroup &productGroup, const QString &description,
                  const QDateTime &expiryDate, const QImage &thumbnail,
                  const PxKeyAccountNumberList &keyAccounts,
                  const QMap<PxProductTypeEnum, QPair<QImage, QRect>> &logos,
                  const PxEmptyMeansAllSet<PxProductType> &allowedProductTypes, bool useSpineText,
                  bool canMoveContent, bool canUseNormalBackgrounds,
                  const PxDefaultThematicCategories &defaultCategories, bool useSpineLogo);
    Q_DISABLE_COPY(PxThemeConfig)
    virtual ~PxThemeConfig();

    ///@{
    /** The same as the function of PxTheme that has this name. */
    bool isValid() const { return m_productGroup.isValid(); }

    QString id() const { return m_id; }
    PxProductGroup productGroup() const { return m_productGroup; }
    QDateTime expiryDate() const { return m_expiryDate; }
    QString description() const { return m_description; }
    QImage thumbnail() const { return m_thumbnail; }
    PxKeyAccountNumberList keyAccounts() const { return m_keyAccounts; }
    bool hasLogo(const PxProductType &type) const { return m_logos.contains(type.type()); }
    QPair<QImage, QRect> logo(const PxProductType &type) const
    {
        return m_logos.value(type.type());
    }
    bool useSpineText() const { return m_useSpineText; }
    bool useSpineLogo() const { return m_useSpineLogo; }
    bool canMoveContent() const { return m_canMoveContent; }
    bool canUseNormalBackgrounds() const { return m_canUseNormalBackgrounds; }
    bool canUseNormalLayouts() const { return false; }
    PxThematicCategory defaultCategory(const PxJigType &jigType) const;
    PxEmptyMeansAllSet<PxProductType> allowedProductTypes() const { return m_allowedProductTypes; }
    ///@}

    /** Compares everything but the allowed product types. */
    bool operator==(const PxThemeConfig &other) const;
    /** As PxTheme::sortingKey(). */
    QString sortingKey() const;

private:
    QString m_id;
    PxProductGroup m_productGroup;
    QDateTime m_expiryDate;
    QString m_description;
    QImage m_thumbnail;
    PxKeyAccountNumberList m_keyAccounts;
    QMap<PxProductTypeEnum, QPair<QImage, QRect>> m_logos;
    bool m_useSpineText = false;
    bool m_useSpineLogo = false;
    bool m_canMoveContent = false;
    bool m_canUseNormalBackgrounds = true;
    PxDefaultThematicCategories m_defaultCategories;
    PxEmptyMeansAllSet<PxProductType> m_allowedProductTypes;
};
