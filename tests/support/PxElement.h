#pragma once

#include <QDomElement>
#include <QString>

/** The document element of an XML text; a null element, and a failed test, when it is malformed. */
QDomElement pxElement(const QString &xml);

/** The same text the other way round, without indentation: to compare what was written. */
QString pxXml(const QDomElement &element);

/** All that a tree holds, attributes in the order of their names, null told from empty. */
QString pxTree(const QDomNode &node);
