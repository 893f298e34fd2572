#pragma once

#include "PxProductPropertiesExport.h"
#include "values/PxFotoPaperType.h"

#include <PxLookUpTable.h>

#include <QMap>
#include <QObject>
#include <QString>

/**
 * Display names of photo-paper finishes and of frame models.
 *
 * The frame models belong to the maker's catalogue: the optional file `frames.xml` in the resource
 * directories has one `frame` element for each, with `id` (plain ASCII) and `name` (the German
 * text). The two frameless variants are built in. An entry without id or name is skipped. If two
 * entries have the same id, the later one is used; a file entry also replaces a built-in one. If
 * the file cannot be read, which is logged as a warning, only the built-in entries exist. Texts are
 * translated when the instance is created.
 */
class PXPRODUCTPROPERTIES_EXPORT PxHumanReadable : public QObject
{
    Q_OBJECT

public:
    /**
     * Created on first use, from any thread; never destroyed. As a QObject it belongs to the thread
     * of the first call, which should be that of the user interface. A message handler must not
     * call this while the instance loads; see PxProductTypeConfigRegistry::instance().
     */
    static PxHumanReadable *instance();

    /** Empty for any other value. */
    QString fotoPaperTypeName(PxFotoPaperType type) const;
    /** The display name of a frame model; the identifier itself if the model is unknown. */
    QString frameName(const QString &id) const;

private:
    PxHumanReadable();

    void initTemplateNames();
    void initFotoPaperTypeNames();

    PxLookUpTable<PxFotoPaperType, QString> m_fotoPaperTypeNames;
    QMap<QString, QString> m_templateNames; // no hash: a hostile file can make it slow
};
