#include "themes/PxTheme.h"

#include <QDebug>
#include <QHash>

const PxTheme &PxTheme::ourVoidTheme = *new PxTheme;

PxTheme::PxTheme() : d(new PxThemeConfig) {}

PxTheme::PxTheme(const QString &id, const PxProductGroup &group, const QString &description,
                 const QDateTime &expiry, const QImage &thumbnail,
                 const PxKeyAccountNumberList &keyAccounts,
                 const QMap<PxProductTypeEnum, QPair<QImage, QRect>> &logos, bool useSpineText,
                 bool canMoveContent, bool canUseNormalBackgrounds,
                 const PxDefaultThematicCategories &categories, bool useSpineLogo,
                 const PxEmptyMeansAllSet<PxProductType> &allowedProducts)
    : d(new PxThemeConfig(id, group, description, expiry, thumbnail, keyAccounts, logos,
                          allowedProducts, useSpineText, canMoveContent, canUseNormalBackgrounds,
                          categories, useSpineLogo))
{}

PxTheme::PxTheme(const PxTheme &other) = default;
PxTheme &PxTheme::operator=(const PxTheme &other) = default;
PxTheme::~PxTheme() = default;

PxTheme PxTheme::voidTheme()
{
    return ourVoidTheme;
}

bool PxTheme::isDefaultTheme() const
{
    return id().compare(QLatin1String("normal"), Qt::CaseInsensitive) == 0;
}

bool PxTheme::isDesignTheme() const
{
    return id().compare(QLatin1String("design"), Qt::CaseInsensitive) == 0;
}

bool PxTheme::isExpired() const
{
    return expiryDate() < QDateTime::currentDateTime();
}

QString PxTheme::expiryDayToOrderTxt() const
{
    return expiryDate().date().toString(QStringLiteral("yyyy'-'MM'-'dd"));
}

bool PxTheme::isValidForKeyAccount(int keyAccount) const
{
    return keyAccounts().contains(keyAccount);
}

PxEmptyMeansAllSet<PxProductType> PxTheme::allowedProductTypes() const
{
    return d->allowedProductTypes();
}

PxThematicCategory PxTheme::defaultCategory(const PxJigType &jigType) const
{
    return d->defaultCategory(jigType);
}

// Shortcuts: each is the default category of one kind of design element.
// clang-format off
PxThematicCategory PxTheme::defaultBackgroundCategory() const { return defaultCategory(PxJigTypeBackground); }
PxThematicCategory PxTheme::defaultClipartCategory() const { return defaultCategory(PxJigTypeClipart); }
PxThematicCategory PxTheme::defaultContentCategory() const { return defaultCategory(PxJigTypeContent); }
PxThematicCategory PxTheme::defaultFadingCategory() const { return defaultCategory(PxJigTypePassepartout); }
PxThematicCategory PxTheme::defaultFrameCategory() const { return defaultCategory(PxJigTypeFrame); }
// clang-format on

bool PxTheme::operator==(const PxTheme &other) const
{
    return d == other.d || *d == *other.d;
}

uint qHash(const PxTheme &theme, uint seed)
{
    return qHash(theme.id(), seed) ^ qHash(theme.expiryDate(), seed);
}

QDebug operator<<(QDebug debug, const PxTheme &theme)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxTheme(" << theme.id() << ')';
}
