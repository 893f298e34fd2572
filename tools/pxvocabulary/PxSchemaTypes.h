#pragma once

#include "format/PxFormatRows.h"

#include <QMap>
#include <QStringList>

class QXmlStreamWriter;

/**
 * The types of values in a schema, as authors may write them: with blanks and in any case where the
 * library takes that.
 */
class PxSchemaTypes
{
public:
    /** The types that a value of the attribute may have, separated by blanks. */
    QString typesOf(const PxAttributeRow &attribute);
    QString typeOf(PxTextKind text);
    /** Defines all types that were asked for. */
    void write(QXmlStreamWriter *xml) const;

private:
    /** What fits the expression, or is of the other type: editors offer the values of that one. */
    struct Pattern
    {
        QString expression;
        QString otherType;
        QString base; ///< what the expression restricts
    };

    QString pattern(const QString &name, const QString &expression,
                    const QString &otherType = QString());
    QString integer();
    QString keyword(PxKeywordSet set);
    QString keywordList(PxKeywordSet set);
    void writeKeyword(QXmlStreamWriter *xml, PxKeywordSet set) const;

    QMap<QString, Pattern> m_patterns; ///< by the name of the type
    QMap<QString, PxKeywordSet> m_keywords;
};
