#pragma once

#include "PxXMLFault.h"

#include <QDomDocument>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>

class QXmlStreamReader;

/**
 * Builds a document, node by node, from the tokens of an XML reader, within the limits of the
 * loader.
 *
 * The reader has read its first token and does not process namespaces. `hasStandalone` says whether
 * its XML declaration has a "standalone" part, which the reader itself does not distinguish from
 * "no".
 */
class PxXMLDocumentBuilder
{
public:
    PxXMLDocumentBuilder(QXmlStreamReader &reader, bool hasStandalone);

    /** After a fault the document is incomplete. */
    std::optional<PxXMLFault> build();
    QDomDocument document() const { return m_document; }

private:
    std::optional<PxXMLFault> addToken();
    std::optional<PxXMLFault> addElement();
    std::optional<PxXMLFault> add(const QDomNode &node);
    /** Counts one more node. */
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
    // Names and values recur throughout a file. Each slot holds the last text with its hash value,
    // so that a file full of hash collisions costs no more than one without recurring texts.
    std::array<QString, 1024> m_texts;
};
