#include "proof/PxPageNames.h"

#include <QCryptographicHash>

namespace {

constexpr int longestName = 60;
constexpr int digestLength = 32;

bool isPlain(QChar unit)
{
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') ||
           (unit >= '0' && unit <= '9');
}

QString digestOf(const QString &name)
{
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex().left(digestLength));
}

} // namespace

QString PxPageNames::of(Kind kind, const QString &name)
{
    QString plain;
    bool isWhole = !name.isEmpty() && name.size() <= longestName;
    for (const QChar unit : name.left(longestName)) {
        isWhole = isWhole && (isPlain(unit) || unit == '_');
        plain += isPlain(unit) ? unit.toLower() : QChar('-');
    }
    // Names never differ in case only. No whole name has a "_" any more, so that none can look
    // like one with a digest.
    if (!isWhole)
        plain += '_' + digestOf(name);
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
