#pragma once

#include "PxProductPropertiesExport.h"

#include <PxProductType.h>

#include <QMap>
#include <QObject>
#include <QString>

/**
 * Display names of product variants: the colours of a mug, the rulings of a notebook.
 *
 * A product file lists the identifiers of its variants; this table names those that are on offer,
 * for each product its own. Names are translated when the instance is created.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductVariantIdentifiers : public QObject
{
    Q_OBJECT

public:
    /**
     * Created on first use, from any thread; never destroyed. As a QObject it belongs to the thread
     * that asks first: let that be the one of the user interface. Not to be asked for by a message
     * handler while it loads, as PxProductTypeConfigRegistry::instance() says.
     */
    static PxProductVariantIdentifiers *instance();

    /** Whether or not the product file lists the identifier; empty for one without a name. */
    QString variantName(const PxProductType &type, const QString &variantId) const;
    /** The same in German, whatever the translator: colours are known by their German names. */
    QString untranslatedName(const PxProductType &type, const QString &variantId) const;
    /** The identifiers of the product file that have a name, with their names. */
    QMap<QString, QString> variants(const PxProductType &type) const;
    bool hasVariants(const PxProductType &type) const;
    /** The alphabetically first identifier of variants(); empty when there is none. */
    QString defaultVariant(const PxProductType &type) const;
    /** What the variants differ in, as "Innenfarbe": translated if there is a translation. */
    QString variantDescription(const PxProductType &type) const;

private:
    PxProductVariantIdentifiers();

    QMap<QString, QString> m_nameOfKey; // the key is the product name, "-" and the identifier
};
