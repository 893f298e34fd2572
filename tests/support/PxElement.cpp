#include "PxElement.h"

#include <QTest>
#include <QTextStream>

QDomElement pxElement(const QString &xml)
{
    static QList<QDomDocument> ourDocuments; // an element must not outlive its document
    QDomDocument document;
    QString error;
    if (!document.setContent(xml, &error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    ourDocuments.append(document);
    return document.documentElement();
}

QString pxXml(const QDomElement &element)
{
    QString xml;
    QTextStream stream(&xml);
    element.save(stream, -1);
    return xml;
}

QString pxTree(const QDomNode &node)
{
    const auto text = [](const QString &t) { return t.isNull() ? "null" : '"' + t + '"'; };
    const QDomDocumentType type = node.toDocument().doctype();
    QString all = QString::number(node.nodeType()) + node.nodeName() + text(node.nodeValue()) +
                  text(type.name()) + text(type.publicId()) + text(type.systemId());
    QStringList attributes;
    for (int i = 0; i < node.attributes().count(); ++i)
        attributes.append(pxTree(node.attributes().item(i)));
    attributes.sort();
    all += attributes.join(' ') + '{';
    for (QDomNode n = node.firstChild(); !n.isNull(); n = n.nextSibling())
        all += pxTree(n);
    return all + '}';
}
