#include "proof/PxPageNames.h"

#include <QCryptographicHash>

namespace {

constexpr int longestName = 60;
constexpr int digestLength = 12;

bool isPlain(QChar unit)
{
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') ||
           (unit >= '0' && unit <= '9');
}

} // namespace

QString PxPageNames::of(Kind kind, const QString &name)
{
    QString plain;
    bool isWhole = name.size() <= longestName;
    for (const QChar unit : name.left(longestName)) {
        isWhole = isWhole && (isPlain(unit) || unit == '_');
        plain += isPlain(unit) ? unit.toLower() : QChar('-');
    }
    // No two names differ in case only: those of products do not, and ids of themes have one case.
    if (!isWhole || plain.isEmpty())
        plain += '-' + QString::fromLatin1(
                           QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256)
                               .toHex()
                               .left(digestLength));
    switch (kind) {
    case Kind::Product:
        return "product-" + plain;
    case Kind::LegacyProduct:
        return "earlier-" + plain;
    case Kind::Theme:
        break;
    }
    return "theme-" + plain;
}
