#pragma once

#include "PxProductPropertiesExport.h"

#include <PxProductType.h>

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

/**
 * Display names of product variants: the colours of a mug, the rulings of a notebook.
 *
 * A product file lists the identifiers of its variants. This table has the names of the variants on
 * offer, separately for each product. Names are translated when the instance is created.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductVariantIdentifiers : public QObject
{
    Q_OBJECT

public:
    /**
     * Created on first use, from any thread; never destroyed. As a QObject it belongs to the thread
     * of the first call, which should be that of the user interface. A message handler must not
     * call this while the instance loads; see PxProductTypeConfigRegistry::instance().
     */
    static PxProductVariantIdentifiers *instance();

    /** The name, even if the product file does not list the identifier; empty if there is none. */
    QString variantName(const PxProductType &type, const QString &variantId) const;
    /** The same in German, without translation: colours are recognised by their German names. */
    QString untranslatedName(const PxProductType &type, const QString &variantId) const;
    /** The identifiers that have a name, in alphabetical order, whatever the product file lists. */
    QStringList namedIdentifiers(const PxProductType &type) const;
    /** The identifiers in the product file that have a name, with their names. */
    QMap<QString, QString> variants(const PxProductType &type) const;
    /** Whether variants() has one. */
    bool hasVariants(const PxProductType &type) const;
    /** The alphabetically first identifier of variants(); empty if there is none. */
    QString defaultVariant(const PxProductType &type) const;
    /** What the variants differ in, such as "Innenfarbe"; translated if there is a translation. */
    QString variantDescription(const PxProductType &type) const;
    /** The German descriptions that have translations, such as "Innenfarbe". */
    static QStringList translatableDescriptions();

private:
    PxProductVariantIdentifiers();

    QMap<QString, QString> m_nameOfKey; // the key is the product name, "-" and the identifier
};
