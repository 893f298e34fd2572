#pragma once

#include "PxXMLFault.h"

#include <QDomDocument>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>

class QXmlStreamReader;

/**
 * Builds a document node by node from what an XML reader reads, within the limits of the loader.
 *
 * The reader has read its first token and processes no namespaces. `hasStandalone` says
 * whether its XML declaration has that part: the reader tells an absent one from "no" no more.
 */
class PxXMLDocumentBuilder
{
public:
    PxXMLDocumentBuilder(QXmlStreamReader &reader, bool hasStandalone);

    /** After a fault there is a part of a document only. */
    std::optional<PxXMLFault> build();
    QDomDocument document() const { return m_document; }

private:
    std::optional<PxXMLFault> addToken();
    std::optional<PxXMLFault> addElement();
    std::optional<PxXMLFault> add(const QDomNode &node);
    /** One node more. */
    std::optional<PxXMLFault> count();
    void addDeclaration(bool hasStandalone);
    std::optional<PxXMLFault> addDocumentType();
    PxXMLFault fault(PxXMLFault::Kind kind, const QString &message) const;
    QString shared(QStringView text);

    QXmlStreamReader &m_reader;
    QDomDocument m_document;
    QDomNode m_parent;
    int m_depth = 0;
    int m_nodes = 0;
    // Names and values recur all over a file. A slot holds the last text of its hash value, so a
    // file made of collisions costs no more than one without recurring texts.
    std::array<QString, 1024> m_texts;
};
