#include "PxProductTypeCatalogue.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxKeyword.h>
#include <PxMessage.h>
#include <PxMessageLimit.h>
#include <PxXMLLoader.h>
#include <PxXMLParser.h>

#include <QAtomicPointer>
#include <QDomElement>
#include <QMutex>

namespace {

constexpr PxKeyword<PxProductClass> classKeywords[] = {
    {"book", PxProductClassBook},       {"calendar", PxProductClassCalendar},
    {"gift", PxProductClassGift},       {"card", PxProductClassCard},
    {"deko", PxProductClassDecoration}, {"print", PxProductClassPrint},
};

PxProductClass readClass(const QDomElement &row)
{
    static const auto &ourKeywords =
        *new QHash<QString, PxProductClass>(EnumHelper::keywordMap(classKeywords));
    return EnumHelper::decodeKeyword(row.attribute(QStringLiteral("class")), ourKeywords,
                                     PxProductClassUnknown);
}

QPair<uint, QString> nameKey(const QString &name)
{
    return {qHash(name), name};
}

QPair<uint, QString> foldedNameKey(const QString &name)
{
    return nameKey(name.trimmed().toCaseFolded());
}

} // namespace

const PxProductTypeCatalogue *PxProductTypeCatalogue::instance()
{
    static QAtomicPointer<PxProductTypeCatalogue> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] {
        const QString name = QStringLiteral("producttypes.xml");
        return new PxProductTypeCatalogue(
            QFileInfo(PxDirectoryConfig::instance()->resource(name, false)));
    });
}

PxProductTypeCatalogue::PxProductTypeCatalogue(const QFileInfo &file)
{
    if (!file.exists())
        return;
    QString error;
    const QDomElement catalogue = PxXMLLoader::loadDocumentElement(file, &error);
    if (catalogue.isNull() || catalogue.tagName() != QLatin1String("producttypes")) {
        if (error.isEmpty())
            error = file.filePath() + QLatin1String(": the document element is not producttypes");
        pxWarning() << "PxProductTypeCatalogue could not read" << error;
        return;
    }
    const QString tag = QStringLiteral("producttype");
    int number = 0;
    int leftOut = 0;
    for (QDomElement row = catalogue.firstChildElement(tag); !row.isNull();
         row = row.nextSiblingElement(tag)) {
        ++number;
        const char *reason = addRow(row);
        if (reason && ++leftOut <= pxMaximumMessages)
            pxWarning().nospace() << "PxProductTypeCatalogue leaves out row " << number << " of "
                                  << file.filePath() << ": " << reason;
    }
    if (leftOut > pxMaximumMessages)
        pxWarning().nospace() << "PxProductTypeCatalogue leaves out " << leftOut - pxMaximumMessages
                              << " more rows of " << file.filePath();
}

PxProductTypeCatalogue::~PxProductTypeCatalogue() = default;

const PxProductTypeEntry *PxProductTypeCatalogue::find(int code) const
{
    return m_byCode.value(code);
}

const PxProductTypeEntry *PxProductTypeCatalogue::find(const QString &name) const
{
    // Nearly every name is written as in the catalogue and need not be case-folded.
    const auto found = m_byName.constFind(nameKey(name));
    return found == m_byName.constEnd() ? m_byName.value(foldedNameKey(name)) : *found;
}

const char *PxProductTypeCatalogue::addRow(const QDomElement &row)
{
    PxProductTypeEntry entry;
    const int code = PxXMLParser::intAttribute(row, QStringLiteral("code"), 0);
    entry.type = static_cast<PxProductTypeEnum>(code);
    entry.name = row.attribute(QStringLiteral("name")).trimmed();
    entry.productClass = readClass(row);
    entry.shortName = PxXMLParser::attribute(row, QStringLiteral("shortname"), entry.name, false);

    const auto key = foldedNameKey(entry.name);
    if (code < 1)
        return "its code is no number above 0";
    if (entry.name.isEmpty())
        return "it has no name";
    if (entry.productClass == PxProductClassUnknown)
        return "its class is unknown";
    if (m_byCode.contains(code))
        return "an earlier row has its code";
    if (m_byName.contains(key))
        return "an earlier row has its name";

    m_entries.push_back(entry);
    m_byCode.insert(code, &m_entries.back());
    m_byName.insert(key, &m_entries.back());
    m_byName.insert(nameKey(entry.name), &m_entries.back());
    return nullptr;
}
