#pragma once

#include "format/PxFormatRows.h"

#include <QMap>
#include <QStringList>

class QXmlStreamWriter;

/**
 * The types of values in a schema. They accept what the library accepts, such as blanks around
 * values and keywords in any case.
 */
class PxSchemaTypes
{
public:
    /** The names of the types that a value of the attribute may have, separated by blanks. */
    QString typesOf(const PxAttributeRow &attribute);
    QString typeOf(PxTextKind text);
    /** Writes the definitions of all types that the other functions have named. */
    void write(QXmlStreamWriter *xml) const;

private:
    /** A type whose values match the expression, or are of the other type, if it is not empty. */
    struct Pattern
    {
        QString expression;
        QString otherType;
        QString base; ///< the type that the expression restricts
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
