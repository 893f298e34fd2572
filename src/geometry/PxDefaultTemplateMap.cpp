#include "geometry/PxDefaultTemplateMap.h"

#include "geometry/PxPageAlignments.h"

#include <PxListParts.h>

#include <QDomElement>
#include <QPair>
#include <QStringView>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr struct
{
    char16_t letter;
    const char *replacement;
} umlauts[] = {{u'ä', "ae"}, {u'ö', "oe"}, {u'ü', "ue"}, {u'ß', "ss"}};

} // namespace

/** Template names without umlauts. They recur within a file, and are converted once and shared. */
class PxDefaultTemplateMap::Names
{
public:
    QString name(const QString &text)
    {
        const QString original = text.trimmed();
        const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
        if (std::all_of(original.cbegin(), original.cend(), isAscii))
            return original; // shared already by the reader of the file
        auto &[known, replaced] = m_recent[qHash(original) % m_recent.size()];
        if (known != original) {
            known = original;
            replaced = removeUmlauts(original);
        }
        return replaced;
    }

private:
    std::array<QPair<QString, QString>, 16> m_recent;
};

PxDefaultTemplateMap::PxDefaultTemplateMap(const QDomElement &parent)
{
    applyDefaultsNode(parent);
}

QString PxDefaultTemplateMap::findTemplate(const PxDefaultTemplateKey &key, bool useFallback) const
{
    const QString own = findOwnTemplate(key);
    if (!own.isEmpty() || !useFallback)
        return own;
    PxDefaultTemplateKey fallback = key;
    fallback.setDefaultTheme();
    return fallback == key ? own : findOwnTemplate(fallback);
}

void PxDefaultTemplateMap::applyDefaultsNode(const QDomElement &parent)
{
    const QString tag = QStringLiteral("defaults");
    int count = m_defaults.size();
    for (QDomElement e = parent.firstChildElement(tag); !e.isNull(); e = e.nextSiblingElement(tag))
        ++count;
    m_defaults.reserve(count);
    Names names;
    int undecodable = 0; // page types of all elements together
    for (QDomElement e = parent.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        const int index = m_defaults.size();
        m_defaults.append(readDefaults(e, names, undecodable));
        const QString themes = e.attribute(QStringLiteral("theme"), QStringLiteral("normal"));
        pxForEachPart(themes, [&](QStringView theme) {
            if (theme.isEmpty())
                return;
            QVector<int> &ofTheme = m_defaultsOfTheme[pxPartText(themes, theme.trimmed())];
            if (ofTheme.isEmpty() || ofTheme.constLast() != index)
                ofTheme.append(index);
        });
    }
    PxPageType().enumToStringTable()->reportMoreUndecodable(undecodable);
}

QString PxDefaultTemplateMap::removeUmlauts(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const auto found = std::find_if(std::begin(umlauts), std::end(umlauts),
                                        [c](const auto &row) { return c == QChar(row.letter); });
        if (found == std::end(umlauts))
            result.append(c);
        else
            result.append(QLatin1String(found->replacement));
    }
    return result;
}

static bool isSingleBit(int flags)
{
    return flags > 0 && (flags & (flags - 1)) == 0;
}

bool PxDefaultTemplateMap::Defaults::isFor(const PxPageContext &page) const
{
    if (!isSingleBit(page.alignment()) || (alignments & page.alignment()) == 0)
        return false;
    const PxPageTypeEnum pageType = page.pageType().value();
    return isSingleBit(pageType) ? (pageTypes & pageType) != 0 : otherPageTypes.contains(pageType);
}

/** Reads part by part: however long the list is, there are few different kinds of page. */
void PxDefaultTemplateMap::readPageTypes(const QString &keywords, Defaults &defaults,
                                         int &undecodable)
{
    const auto *table = PxPageType().enumToStringTable();
    pxForEachPart(keywords, [&](QStringView part) {
        const PxPageTypeEnum pageType =
            table->decodeCSV(pxPartText(keywords, part.trimmed()), undecodable);
        if (isSingleBit(pageType))
            defaults.pageTypes |= pageType;
        else if (!defaults.otherPageTypes.contains(pageType))
            defaults.otherPageTypes.append(pageType);
    });
}

PxDefaultTemplateMap::Defaults PxDefaultTemplateMap::readDefaults(const QDomElement &element,
                                                                  Names &names, int &undecodable)
{
    Defaults defaults;
    readPageTypes(element.attribute(QStringLiteral("pageType")), defaults, undecodable);
    defaults.alignments = pxPageAlignments(element);

    // The short form: a background, or a background and a layout. If there are more names, only the
    // first is used.
    const QString shortForm = element.attribute(QStringLiteral("templates"));
    QStringView parts[2]; // of perhaps a million
    int count = 0;
    pxForEachPart(shortForm, [&](QStringView part) {
        if (part.isEmpty())
            return;
        if (count < 2)
            parts[count] = part;
        ++count;
    });
    const QString layout = count == 2 ? parts[1].toString() : QString();
    defaults.templates[DefaultTemplateTypeLayout] =
        names.name(element.attribute(QStringLiteral("layout"), layout));
    defaults.templates[DefaultTemplateTypeBackground] =
        names.name(element.attribute(QStringLiteral("background"), parts[0].toString()));
    return defaults;
}

QString PxDefaultTemplateMap::findOwnTemplate(const PxDefaultTemplateKey &key) const
{
    const int type = key.defaultTemplateType();
    if (type != DefaultTemplateTypeLayout && type != DefaultTemplateTypeBackground)
        return QString();
    const PxPageContext page = key.pageContext();
    const QVector<int> ofTheme = m_defaultsOfTheme.value(key.theme());
    const auto found = std::find_if(ofTheme.crbegin(), ofTheme.crend(),
                                    [&](int index) { return m_defaults[index].isFor(page); });
    return found == ofTheme.crend() ? QString() : m_defaults[*found].templates[type];
}
