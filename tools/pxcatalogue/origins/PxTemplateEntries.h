#pragma once

#include "check/design/PxDefaultsEntry.h"

#include <geometry/PxPageContext.h>

#include <QMap>
#include <QString>
#include <QVector>

/** The entries of one list of default templates, in a product file or of the user. */
class PxTemplateEntries
{
public:
    /** `list` has the entries and must outlive this; null for none. */
    explicit PxTemplateEntries(const PxSourceElement *list);

    /**
     * From which the library takes a layout or background for pages of this kind in a theme. Null
     * if the entry that decides names none, or if there is no entry.
     */
    const PxSourceElement *find(const QString &theme, const PxPageContext &page,
                                bool isLayout) const;

private:
    QMap<QString, QVector<PxDefaultsEntry>> m_ofTheme; // in the order in which they are tried
};
