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
 * directories lists them, one `frame` element with `id` (plain ASCII) and `name` (the German text)
 * each. The two frameless variants are built in. An entry without id or name is left out; of two
 * with one id the later one counts, also over a built-in one. Of a file that cannot be read, which
 * is a warning, there are the built-in ones only. Texts are translated when the instance is
 * created.
 */
class PXPRODUCTPROPERTIES_EXPORT PxHumanReadable : public QObject
{
    Q_OBJECT

public:
    /**
     * Created on first use, from any thread; never destroyed. As a QObject it belongs to the thread
     * that asks first: let that be the one of the user interface. Not to be asked for by a message
     * handler while it loads, as PxProductTypeConfigRegistry::instance() says.
     */
    static PxHumanReadable *instance();

    /** Empty for a value that is no finish. */
    QString fotoPaperTypeName(PxFotoPaperType type) const;
    /** The display name of a frame model; the identifier itself when it is unknown. */
    QString frameName(const QString &id) const;

private:
    PxHumanReadable();

    void initTemplateNames();
    void initFotoPaperTypeNames();

    PxLookUpTable<PxFotoPaperType, QString> m_fotoPaperTypeNames;
    QMap<QString, QString> m_templateNames; // sorted: names of a file may share one hash
};
