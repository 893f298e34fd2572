#include "PxXMLBuilder.h"

QDomElement PxXMLBuilder::buildDomElement(QDomElement &parent, const QString &name,
                                          const QString &text)
{
    if (parent.isNull())
        return {};
    // Null if the parent has outlived its document; then createElement() makes a new one.
    QDomDocument document = parent.ownerDocument();
    QDomElement child = document.createElement(name);
    parent.appendChild(child);
    if (!text.isEmpty())
        child.appendChild(document.createTextNode(text));
    return child;
}
