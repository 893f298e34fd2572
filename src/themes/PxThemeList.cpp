#include "themes/PxThemeList.h"

#include "themes/PxThemeFactory.h"

#include <QMap>

#include <algorithm>
#include <iterator>

const QStringList &PxThemeList::ourReverseOrderedThemeNames = *new QStringList{
    QStringLiteral("normal"), QStringLiteral("design"), QStringLiteral("albfreetheme")};

namespace {

PxThemeList::const_iterator findId(const PxThemeList &themes, const QString &id)
{
    return std::find_if(themes.begin(), themes.end(),
                        [&id](const PxTheme &theme) { return theme.id() == id; });
}

} // namespace

PxThemeList::PxThemeList(const PxTheme &theme)
{
    append(theme);
}

PxThemeList::PxThemeList(const QString &ids)
    : PxThemeList(PxThemeFactory::instance()->findThemes(ids))
{}

PxThemeList::PxThemeList(const QList<PxTheme> &themes) : QList<PxTheme>(themes) {}

PxThemeFactory *PxThemeList::factory() const
{
    return PxThemeFactory::instance();
}

bool PxThemeList::contains(const PxTheme &theme) const
{
    return QList<PxTheme>::contains(theme);
}

bool PxThemeList::contains(const QString &id) const
{
    return findId(*this, id) != end();
}

bool PxThemeList::containsDefaultTheme() const
{
    return contains(factory()->defaultTheme());
}

PxTheme PxThemeList::findTheme(const QString &id) const
{
    const auto found = findId(*this, id);
    return found == end() ? PxTheme::voidTheme() : *found;
}

PxThemeList PxThemeList::filter(int keyAccount, bool expired) const
{
    PxThemeList themes;
    // The flag names the themes to leave out: applications pass true for those that can be ordered.
    std::copy_if(begin(), end(), std::back_inserter(themes), [&](const PxTheme &theme) {
        return theme.isValidForKeyAccount(keyAccount) && theme.isExpired() != expired;
    });
    return themes;
}

QStringList PxThemeList::idList() const
{
    QStringList ids;
    std::transform(begin(), end(), std::back_inserter(ids),
                   [](const PxTheme &theme) { return theme.id(); });
    return ids;
}

QString PxThemeList::asCommaSeparatedIDList() const
{
    return idList().join(QLatin1Char(','));
}

QStringList PxThemeList::descriptionList() const
{
    QStringList descriptions;
    std::transform(begin(), end(), std::back_inserter(descriptions),
                   [](const PxTheme &theme) { return theme.description(); });
    return descriptions;
}

void PxThemeList::appendUnique(const PxThemeList &other)
{
    // By sorting key, not by hash: all ids of a hostile file may be equal or share one hash.
    QMap<QString, QList<PxTheme>> known;
    for (const PxTheme &theme : qAsConst(*this))
        known[theme.sortingKey()].append(theme);
    for (const PxTheme &theme : other) {
        QList<PxTheme> &alike = known[theme.sortingKey()];
        if (alike.contains(theme))
            continue;
        alike.append(theme);
        append(theme);
    }
}

void PxThemeList::expandDefaultThemeToAllNormalThemes()
{
    if (containsDefaultTheme())
        appendUnique(factory()->findThemesWhichAcceptNormalBackgrounds());
}

void PxThemeList::normalize()
{
    for (const QString &name : ourReverseOrderedThemeNames) {
        const PxTheme theme = findTheme(name);
        if (theme.isValid()) {
            removeOne(theme);
            prepend(theme);
        }
    }
}
