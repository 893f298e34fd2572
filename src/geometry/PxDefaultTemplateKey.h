#pragma once

#include "geometry/DefaultTemplateType.h"
#include "geometry/PxPageContext.h"

#include <QString>

class QDebug;

/** Under which default templates are looked up: theme, kind of page, and which template. */
class PXPRODUCTPROPERTIES_EXPORT PxDefaultTemplateKey
{
public:
    PxDefaultTemplateKey(const QString &theme, const PxPageContext &pageContext,
                         DefaultTemplateType defaultTemplateType);

    /** The theme id; "normal" is the theme that the others fall back to. */
    QString theme() const { return m_theme; }
    PxPageContext pageContext() const { return m_pageContext; }
    PxPageType pageType() const { return m_pageContext.pageType(); }
    PxPageAlignment pageAlignment() const { return m_pageContext.alignment(); }
    DefaultTemplateType defaultTemplateType() const { return m_defaultTemplateType; }

    /** Makes it the key of the theme "normal". */
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
