#pragma once

#include "geometry/DefaultTemplateType.h"
#include "geometry/PxPageContext.h"

#include <QString>

class QDebug;

/**
 * The key by which default templates are found: a theme, a kind of page, and which of the two
 * templates.
 */
class PXPRODUCTPROPERTIES_EXPORT PxDefaultTemplateKey
{
public:
    /** Everything is kept as it is; theme ids are compared exactly. */
    PxDefaultTemplateKey(const QString &theme, const PxPageContext &pageContext,
                         DefaultTemplateType defaultTemplateType);

    /** The theme id. Other themes fall back to the theme "normal". */
    QString theme() const { return m_theme; }
    /** The kind of page and its side. */
    PxPageContext pageContext() const { return m_pageContext; }
    /** The kind of page alone. */
    PxPageType pageType() const { return m_pageContext.pageType(); }
    /** The side of the page alone. */
    PxPageAlignment pageAlignment() const { return m_pageContext.alignment(); }
    /** Layout or background. */
    DefaultTemplateType defaultTemplateType() const { return m_defaultTemplateType; }

    /** Changes the theme to "normal". */
    void setDefaultTheme();

    bool operator==(const PxDefaultTemplateKey &other) const;
    bool operator!=(const PxDefaultTemplateKey &other) const { return !(*this == other); }

private:
    QString m_theme;
    PxPageContext m_pageContext;
    DefaultTemplateType m_defaultTemplateType;
};

PXPRODUCTPROPERTIES_EXPORT uint qHash(const PxDefaultTemplateKey &key, uint seed = 0);

Q_DECLARE_TYPEINFO(PxDefaultTemplateKey, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxDefaultTemplateKey &key);
