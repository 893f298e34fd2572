#include "PxReadingRecorder.h"

namespace {

PxReadingRecorder *ourRecorder = nullptr;

void record(const QDomNode &element, char separator, const QString &name)
{
    if (ourRecorder)
        ourRecorder->record(element, QLatin1Char(separator), name);
}

} // namespace

PxReadingRecorder::PxReadingRecorder()
{
    ourRecorder = this;
}

PxReadingRecorder::~PxReadingRecorder()
{
    ourRecorder = nullptr;
}

void PxReadingRecorder::record(const QDomNode &element, QChar separator, const QString &name)
{
    if (!element.isElement() || name.isEmpty())
        return;
    QString path = separator + name;
    for (QDomNode node = element; node.isElement(); node = node.parentNode())
        path.prepend('/' + node.nodeName());
    m_names.insert(path.mid(1));
}

// A function that the program defines takes the place of the one in a shared library, for all
// libraries of the process. These do what Qt's do, and record.

QDomNode QDomNamedNodeMap::namedItem(const QString &name) const
{
    for (int i = 0; i < size(); ++i) {
        const QDomNode node = item(i);
        if (i == 0 && node.isAttr())
            record(node.toAttr().ownerElement(), '@', name);
        if (node.nodeName() == name)
            return node;
    }
    return QDomNode();
}

QDomAttr QDomElement::attributeNode(const QString &name)
{
    record(*this, '@', name);
    return attributes().namedItem(name).toAttr();
}

bool QDomElement::hasAttribute(const QString &name) const
{
    return !QDomElement(*this).attributeNode(name).isNull();
}

QString QDomElement::attribute(const QString &name, const QString &defaultValue) const
{
    const QDomAttr attribute = QDomElement(*this).attributeNode(name);
    return attribute.isNull() ? defaultValue : attribute.value();
}

QDomElement QDomNode::firstChildElement(const QString &name) const
{
    record(*this, '/', name);
    for (QDomNode node = firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement() && (name.isEmpty() || node.nodeName() == name))
            return node.toElement();
    }
    return QDomElement();
}
