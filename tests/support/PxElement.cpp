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
