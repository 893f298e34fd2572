#include "PxSchemaTypes.h"

#include "format/PxFormat.h"

#include <QXmlStreamWriter>

namespace {

// A pattern in a schema cannot ignore case. Keywords contain no special characters of patterns.
QString inAnyCase(const QString &word)
{
    QString expression;
    for (const QChar c : word) {
        if (c.isLetter())
            expression += QStringLiteral("[%1%2]").arg(c.toLower()).arg(c.toUpper());
        else
            expression += c;
    }
    return expression;
}

/** A pattern for one of the words, with blanks around it. */
QString oneOf(const QStringList &words)
{
    QStringList expressions;
    for (const QString &word : words)
        expressions.append(inAnyCase(word));
    return QStringLiteral("\\s*(%1)\\s*").arg(expressions.join(QLatin1Char('|')));
}

QString listOf(const QString &entry)
{
    return QStringLiteral("%1(,%1)*").arg(entry);
}

QString documentation(const PxKeywordTableRow &row, const QString &synonym)
{
    QString text = row.meaning.isNull() ? QStringLiteral("the same as %1").arg(synonym)
                                        : QString(row.meaning).remove(QLatin1Char('`'));
    if (row.size && qstrcmp(row.size, "–") != 0)
        text += QStringLiteral("; size: ") + QString::fromUtf8(row.size);
    return text;
}

void writePattern(QXmlStreamWriter *xml, const QString &expression,
                  const QString &base = QStringLiteral("xs:string"))
{
    xml->writeStartElement("xs:restriction");
    xml->writeAttribute("base", base);
    xml->writeEmptyElement("xs:pattern");
    xml->writeAttribute("value", expression);
    xml->writeEndElement();
}

} // namespace

QString PxSchemaTypes::typesOf(const PxAttributeRow &attribute)
{
    const QString number = QStringLiteral("\\s*[0-9]+\\s*");
    switch (attribute.type) {
    case PxValueType::Integer:
    case PxValueType::Length:
    case PxValueType::RectanglePart:
        return integer();
    case PxValueType::Boolean:
        return pattern("boolean", oneOf({"true", "1", "yes", "on", "false", "0", "no", "off"}),
                       "xs:boolean");
    case PxValueType::DateTime:
        return pattern("date-and-time",
                       "\\s*([0-9]{12}|[0-9]{4}-[0-9]{2}-[0-9]{2}(T[0-9]{2}:[0-9]{2}(:[0-9]{2}"
                       "([.,][0-9]+)?)?(Z|[+\\-][0-9]{2}(:?[0-9]{2})?)?)?)\\s*");
    case PxValueType::PageRange:
        return pattern("page-range", QStringLiteral("%1(-%1)?").arg(number));
    case PxValueType::Keyword:
    case PxValueType::OneKeyword:
    case PxValueType::KeywordList:
        break;
    default:
        return QStringLiteral("xs:string");
    }
    const PxKeywordSet set = attribute.keywords;
    const QString type =
        attribute.type == PxValueType::KeywordList ? keywordList(set) : keyword(set);
    // An empty value is allowed if the library reads it like an absent attribute.
    const bool mayBeEmpty = attribute.defaultText &&
                            PxFormat::decode(set, QString()) ==
                                PxFormat::decode(set, QString::fromUtf8(attribute.defaultText));
    return mayBeEmpty ? type + QLatin1Char(' ') + pattern("empty", "\\s*") : type;
}

QString PxSchemaTypes::typeOf(PxTextKind text)
{
    switch (text) {
    case PxTextKind::Integer:
        return integer();
    case PxTextKind::NumberList:
        return pattern("number-list",
                       QStringLiteral("\\s*|%1").arg(listOf("\\s*[+\\-]?[0-9]+\\s*")));
    case PxTextKind::PageTypes:
        return keywordList(PxKeywordSet::PageType);
    default:
        return QStringLiteral("xs:string");
    }
}

QString PxSchemaTypes::pattern(const QString &name, const QString &expression,
                               const QString &otherType)
{
    m_patterns.insert(name, {expression, otherType, "xs:string"});
    return name;
}

/** Has a pattern, because libxml2 accepts blanks around a number only in types with a pattern. */
QString PxSchemaTypes::integer()
{
    const QString name = QStringLiteral("int");
    m_patterns.insert(name, {"[+\\-]?[0-9]+", QString(), "xs:int"});
    return name;
}

QString PxSchemaTypes::keyword(PxKeywordSet set)
{
    const QString name =
        QString::fromUtf8(PxFormat::keywords(set).name).replace(QLatin1Char(' '), QLatin1Char('-'));
    m_keywords.insert(name, set);
    return name;
}

QString PxSchemaTypes::keywordList(PxKeywordSet set)
{
    const QString name = keyword(set);
    return pattern(name + QStringLiteral("-list"), listOf(oneOf(PxFormat::keywordNames(set))),
                   name);
}

void PxSchemaTypes::write(QXmlStreamWriter *xml) const
{
    for (auto type = m_patterns.begin(); type != m_patterns.end(); ++type) {
        xml->writeStartElement("xs:simpleType");
        xml->writeAttribute("name", type.key());
        if (type->otherType.isEmpty()) {
            writePattern(xml, type->expression, type->base);
        } else {
            xml->writeStartElement("xs:union");
            xml->writeAttribute("memberTypes", type->otherType);
            xml->writeStartElement("xs:simpleType");
            writePattern(xml, type->expression, type->base);
            xml->writeEndElement();
            xml->writeEndElement();
        }
        xml->writeEndElement();
    }
    for (auto type = m_keywords.begin(); type != m_keywords.end(); ++type) {
        xml->writeStartElement("xs:simpleType");
        xml->writeAttribute("name", type.key());
        writeKeyword(xml, type.value());
        xml->writeEndElement();
    }
}

/** Writes an enumeration, so that editors offer the words, and a pattern that accepts any case. */
void PxSchemaTypes::writeKeyword(QXmlStreamWriter *xml, PxKeywordSet set) const
{
    const bool isExact = set == PxKeywordSet::Material;
    if (!isExact) {
        xml->writeStartElement("xs:union");
        xml->writeStartElement("xs:simpleType");
    }
    xml->writeStartElement("xs:restriction");
    xml->writeAttribute("base", "xs:string");
    QString synonym;
    for (const PxKeywordTableRow &row : PxFormat::keywords(set).keywords) {
        if (!row.meaning.isNull())
            synonym = row.keyword;
        xml->writeStartElement("xs:enumeration");
        xml->writeAttribute("value", row.keyword);
        const QString text = documentation(row, synonym);
        if (!text.isEmpty()) {
            xml->writeStartElement("xs:annotation");
            xml->writeTextElement("xs:documentation", text);
            xml->writeEndElement();
        }
        xml->writeEndElement();
    }
    xml->writeEndElement();
    if (!isExact) {
        xml->writeEndElement();
        xml->writeStartElement("xs:simpleType");
        writePattern(xml, oneOf(PxFormat::keywordNames(set)));
        xml->writeEndElement();
        xml->writeEndElement();
    }
}
