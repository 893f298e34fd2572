#pragma once

#include "check/design/PxDefaultsEntry.h"
#include "why/PxWhyQuestion.h"

#include <geometry/DefaultTemplateType.h>
#include <geometry/PxPageContext.h>

class PxOriginFile;
class PxWhyProduct;

/** Which default template a page gets from which entry, and why not from another one. */
class PxWhyTemplates
{
public:
    /** The product must outlive this. */
    PxWhyTemplates(const PxWhyProduct &product, const PxPageContext &page);

    PxWhyRule rule(const QString &tag, DefaultTemplateType type) const;

private:
    /** The entries of a file, in which the library looks for one theme at a time. */
    struct List
    {
        const PxOriginFile &file;
        QVector<PxDefaultsEntry> entries;
        QStringList themes;
        QVector<int> found; ///< the index of the entry that decides, for each theme; or -1
    };
    /** The entry with the template that is used. */
    struct Used
    {
        const List *list; ///< null if there is none
        int index;
    };

    void add(const PxOriginFile &file, const PxSourceElement *list, const QStringList &themes);
    Used find(DefaultTemplateType type) const;
    QString answer(DefaultTemplateType type) const;
    bool isWhite(DefaultTemplateType type) const;
    bool isForPage(const PxDefaultsEntry &entry) const;
    QString reason(const List &list, int index, const Used &used) const;

    const PxWhyProduct &m_product;
    PxPageContext m_page;
    QVector<List> m_lists;
};
