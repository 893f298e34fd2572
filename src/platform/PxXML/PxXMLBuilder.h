#pragma once

#include "PxXMLExport.h"

#include <QDomElement>
#include <QString>

/** Writes small pieces of XML. */
class PXXML_EXPORT PxXMLBuilder
{
public:
    /**
     * Appends a child element with this name and text, and returns it.
     *
     * An empty text gives an element without content. A null parent gives a null element.
     */
    static QDomElement buildDomElement(QDomElement &parent, const QString &name,
                                       const QString &text);
};
