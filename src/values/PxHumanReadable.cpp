#include "values/PxHumanReadable.h"

#include <PxCreateOnce.h>
#include <PxDirectoryConfig.h>
#include <PxMessage.h>
#include <PxMessageLimit.h>
#include <PxXMLLoader.h>

#include <QAtomicPointer>
#include <QDomElement>
#include <QFileInfo>
#include <QMutex>

PxHumanReadable *PxHumanReadable::instance()
{
    static QAtomicPointer<PxHumanReadable> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxHumanReadable; });
}

PxHumanReadable::PxHumanReadable()
{
    initTemplateNames();
    initFotoPaperTypeNames();
}

QString PxHumanReadable::fotoPaperTypeName(PxFotoPaperType type) const
{
    return m_fotoPaperTypeNames.findByKey(type);
}

QString PxHumanReadable::frameName(const QString &id) const
{
    return m_templateNames.value(id, id);
}

void PxHumanReadable::initTemplateNames()
{
    constexpr const char *frameless[] = {
        QT_TR_NOOP("Leinwand Ohne Rahmen"),
        QT_TR_NOOP("Poster Ohne Rahmen"),
    };
    for (const char *name : frameless)
        m_templateNames.insert(QString::fromLatin1(name), tr(name));

    const QFileInfo file(
        PxDirectoryConfig::instance()->resource(QStringLiteral("frames.xml"), false));
    if (!file.exists())
        return;
    QString error;
    const QDomElement frames = PxXMLLoader::loadDocumentElement(file, &error);
    if (frames.isNull())
        pxWarning() << "PxHumanReadable::initTemplateNames could not open" << error;
    const QString tag = QStringLiteral("frame");
    int incomplete = 0;
    for (QDomElement e = frames.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag)) {
        const QString id = e.attribute(QStringLiteral("id"));
        const QString name = e.attribute(QStringLiteral("name"));
        if (!id.isEmpty() && !name.isEmpty())
            m_templateNames.insert(id, tr(name.toUtf8().constData()));
        else if (++incomplete <= pxMaximumMessages)
            pxWarning() << "PxHumanReadable::initTemplateNames frame without id or name" << id
                        << name;
    }
    if (incomplete > pxMaximumMessages)
        pxWarning() << "PxHumanReadable::initTemplateNames" << incomplete - pxMaximumMessages
                    << "more frames without id or name";
}

void PxHumanReadable::initFotoPaperTypeNames()
{
    constexpr struct
    {
        PxFotoPaperType type;
        const char *name;
    } names[] = {
        {PxFotoPaperTypeUnknown, QT_TR_NOOP("Unbekanntes Fotopapier")},
        {PxFotoPaperTypeGlossy, QT_TR_NOOP("Glänzend")},
        {PxFotoPaperTypeMatt, QT_TR_NOOP("Matt")},
        {PxFotoPaperTypeSilkGrain, QT_TR_NOOP("Seidenraster")},
    };
    for (const auto &row : names)
        m_fotoPaperTypeNames.insert(row.type, tr(row.name));
}
