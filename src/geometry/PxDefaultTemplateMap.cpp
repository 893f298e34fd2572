#include "geometry/PxDefaultTemplateMap.h"

#include <PxListParts.h>

#include <QDomElement>

#include <algorithm>

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
    for (QDomElement e = parent.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        const int index = m_defaults.size();
        m_defaults.append(readDefaults(e));
        const QString themes = e.attribute(QStringLiteral("theme"), QStringLiteral("normal"));
        pxForEachPart(themes, [&](QStringView theme) {
            if (theme.isEmpty())
                return;
            QVector<int> &ofTheme = m_defaultsOfTheme[theme.trimmed().toString()];
            if (ofTheme.isEmpty() || ofTheme.constLast() != index)
                ofTheme.append(index);
        });
    }
}

QString PxDefaultTemplateMap::removeUmlauts(QString text)
{
    constexpr struct
    {
        char16_t letter;
        const char *replacement;
    } umlauts[] = {{u'ä', "ae"}, {u'ö', "oe"}, {u'ü', "ue"}, {u'ß', "ss"}};
    for (const auto &row : umlauts)
        text.replace(QChar(row.letter), QLatin1String(row.replacement));
    return text;
}

bool PxDefaultTemplateMap::Defaults::isFor(const PxPageContext &page) const
{
    const unsigned alignment = unsigned(page.alignment());
    const bool isSingleBit = alignment != 0 && (alignment & (alignment - 1)) == 0;
    return isSingleBit && (unsigned(alignments) & alignment) != 0 &&
           pageTypes.contains(page.pageType().value());
}

PxDefaultTemplateMap::Defaults PxDefaultTemplateMap::readDefaults(const QDomElement &element)
{
    Defaults defaults;
    // One part at a time: however long the list, there are few kinds of page.
    const QString pageTypes = element.attribute(QStringLiteral("pageType"));
    pxForEachPart(pageTypes, [&defaults](QStringView part) {
        const PxPageTypeEnum pageType = PxPageType(part.trimmed().toString()).value();
        if (!defaults.pageTypes.contains(pageType))
            defaults.pageTypes.append(pageType);
    });
    defaults.alignments = EnumHelper::decodeKeywordList(
        element.attribute(QStringLiteral("alignment"),
                          QStringLiteral("left,right,top,bottom,center,middle")),
        EnumHelper::globalMapPageAlignmentString, EnumHelper::globalPageAlignmentDefaultValue);

    // The short form: a background, or background and layout. Of more names the first still counts.
    const QString shortForm = element.attribute(QStringLiteral("templates"));
    QStringView names[2];
    int count = 0;
    pxForEachPart(shortForm, [&](QStringView name) {
        if (name.isEmpty())
            return;
        if (count < 2)
            names[count] = name;
        ++count;
    });
    const QString layout = count == 2 ? names[1].toString() : QString();
    defaults.templates[DefaultTemplateTypeLayout] =
        removeUmlauts(element.attribute(QStringLiteral("layout"), layout).trimmed());
    defaults.templates[DefaultTemplateTypeBackground] = removeUmlauts(
        element.attribute(QStringLiteral("background"), names[0].toString()).trimmed());
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
