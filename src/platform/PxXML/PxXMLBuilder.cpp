#include "PxXMLBuilder.h"

QDomElement PxXMLBuilder::buildDomElement(QDomElement &parent, const QString &name,
                                          const QString &text)
{
    if (parent.isNull())
        return {};
    // The parent may have outlived its document; then this one lends itself as the maker of nodes.
    QDomDocument document = parent.ownerDocument();
    QDomElement child = document.createElement(name);
    parent.appendChild(child);
    if (!text.isEmpty())
        child.appendChild(document.createTextNode(text));
    return child;
}
