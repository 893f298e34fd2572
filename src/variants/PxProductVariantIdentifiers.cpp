#include "variants/PxProductVariantIdentifiers.h"

#include "description/PxProductTypeConfigRegistry.h"

#include <PxCreateOnce.h>

#include <QAtomicPointer>
#include <QByteArray>
#include <QMutex>

#include <algorithm>
#include <iterator>

namespace {

constexpr struct
{
    const char *key;
    struct
    {
        const char *text;
        const char *comment; // for the translator, and part of the key of the translation
    } name;
} names[] = {
    // clang-format off
    {"CUP2-color:black", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Schwarz", "Farbe für Tasse mit Innenfarbe")},
    {"CUP2-color:blue", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Blau", "Farbe für Tasse mit Innenfarbe")},
    {"CUP2-color:green", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Grün", "Farbe für Tasse mit Innenfarbe")},
    {"CUP2-color:yellow", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Gelb", "Farbe für Tasse mit Innenfarbe")},
    {"CUP2-color:red", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Rot", "Farbe für Tasse mit Innenfarbe")},
    {"CUP10-color:black", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Schwarz", "Farbe für Tasse mit Innenfarbe")},
    {"CUP10-color:blue", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Blau", "Farbe für Tasse mit Innenfarbe")},
    {"CUP10-color:green", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Grün", "Farbe für Tasse mit Innenfarbe")},
    {"CUP10-color:yellow", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Gelb", "Farbe für Tasse mit Innenfarbe")},
    {"CUP10-color:red", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Rot", "Farbe für Tasse mit Innenfarbe")},
    {"BA7-color:black", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Schwarz", "Farbe für Messenger-Bag")},
    {"PDT1-figure:mouse", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Maus", "Art des Tierchenanhängers")},
    {"PDT1-figure:monkey", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Äffchen", "Art des Tierchenanhängers")},
    {"PDT1-figure:teddy", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Teddy", "Art des Tierchenanhängers")},
    {"PDT1-figure:dog", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "Hund", "Art des Tierchenanhängers")},
    {"CB6-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Collegeblocks")},
    {"CB6-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Collegeblocks")},
    {"CB8-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Collegeblocks")},
    {"CB8-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Collegeblocks")},
    {"CB14-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Notitzbuchs")},
    {"CB14-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Notitzbuchs")},
    {"CB14-ruling:blank", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "blanko", "Inlay des Notitzbuchs")},
    {"CB9-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Collegeblocks")},
    {"CB9-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Collegeblocks")},
    {"CB13S3-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Collegeblocks")},
    {"CB13S3-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Collegeblocks")},
    {"CB1S3-ruling:lined", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "liniert", "Inlay des Collegeblocks")},
    {"CB1S3-ruling:chequered", QT_TRANSLATE_NOOP3("PxProductVariantIdentifiers", "kariert", "Inlay des Collegeblocks")},
    // clang-format on
};

// The descriptions that product files use; variantDescription() translates them.
constexpr const char *descriptionLabels[] = {
    QT_TRANSLATE_NOOP("PxProductVariantIdentifiers", "Innenfarbe"),
    QT_TRANSLATE_NOOP("PxProductVariantIdentifiers", "Farbe"),
    QT_TRANSLATE_NOOP("PxProductVariantIdentifiers", "Art"),
    QT_TRANSLATE_NOOP("PxProductVariantIdentifiers", "Lineatur"),
    QT_TRANSLATE_NOOP("PxProductVariantIdentifiers", "Schriftfarbe"),
};

QString fullKey(const PxProductType &type, const QString &variantId)
{
    return type.productName() + QLatin1Char('-') + variantId;
}

} // namespace

PxProductVariantIdentifiers *PxProductVariantIdentifiers::instance()
{
    static QAtomicPointer<PxProductVariantIdentifiers> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxProductVariantIdentifiers; });
}

PxProductVariantIdentifiers::PxProductVariantIdentifiers()
{
    for (const auto &row : names)
        m_nameOfKey.insert(QString::fromUtf8(row.key), tr(row.name.text, row.name.comment));
    // The results are not needed, but a translator that collects missing texts gets the labels this
    // way.
    for (const char *label : descriptionLabels)
        tr(label);
}

QString PxProductVariantIdentifiers::variantName(const PxProductType &type,
                                                 const QString &variantId) const
{
    return m_nameOfKey.value(fullKey(type, variantId));
}

QString PxProductVariantIdentifiers::untranslatedName(const PxProductType &type,
                                                      const QString &variantId) const
{
    const QString key = fullKey(type, variantId);
    const auto found = std::find_if(std::begin(names), std::end(names), [&key](const auto &row) {
        return key == QLatin1String(row.key);
    });
    return found == std::end(names) ? QString() : QString::fromUtf8(found->name.text);
}

QStringList PxProductVariantIdentifiers::namedIdentifiers(const PxProductType &type) const
{
    QStringList identifiers;
    const QString prefix = fullKey(type, QString());
    for (auto it = m_nameOfKey.lowerBound(prefix);
         it != m_nameOfKey.constEnd() && it.key().startsWith(prefix); ++it)
        identifiers.append(it.key().mid(prefix.size()));
    return identifiers;
}

QMap<QString, QString> PxProductVariantIdentifiers::variants(const PxProductType &type) const
{
    QMap<QString, QString> variants;
    const QStringList identifiers = PxProductTypeConfigRegistry::instance()->variants(type);
    for (const QString &identifier : identifiers) {
        const QString name = variantName(type, identifier);
        if (!name.isEmpty())
            variants.insert(identifier, name);
    }
    return variants;
}

bool PxProductVariantIdentifiers::hasVariants(const PxProductType &type) const
{
    return !variants(type).isEmpty();
}

QString PxProductVariantIdentifiers::defaultVariant(const PxProductType &type) const
{
    // Not the first one in the product file, whose order has no meaning.
    const QMap<QString, QString> all = variants(type);
    return all.isEmpty() ? QString() : all.firstKey();
}

QString PxProductVariantIdentifiers::variantDescription(const PxProductType &type) const
{
    const QString description = PxProductTypeConfigRegistry::instance()->variantDescription(type);
    // The text is looked up as Latin-1 bytes. Without a translation these come back read as UTF-8,
    // which is right only for ASCII; then the original text is returned.
    const QByteArray source = description.toLatin1();
    const QString translation = tr(source.constData());
    return translation == QString::fromUtf8(source) ? description : translation;
}

QStringList PxProductVariantIdentifiers::translatableDescriptions()
{
    QStringList descriptions;
    for (const char *label : descriptionLabels)
        descriptions.append(QString::fromUtf8(label));
    return descriptions;
}
