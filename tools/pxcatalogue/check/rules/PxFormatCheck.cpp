#include "check/rules/PxFormatCheck.h"

#include "check/PxCheckLimits.h"
#include "check/rules/PxElementReading.h"
#include "check/rules/PxMissingValue.h"
#include "check/rules/PxValueCheck.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString nameOf(const PxElementRow &row)
{
    return QLatin1String(row.name);
}

template <typename Visit>
void forEachRow(const PxElementRow &row, Visit visit)
{
    visit(row);
    for (const PxElementRow &child : row.children)
        forEachRow(child, visit);
}

/** The name without its namespace prefix. */
QString localName(const QString &name)
{
    return name.mid(name.indexOf(QLatin1Char(':')) + 1);
}

QString withoutPrefix(const QString &local)
{
    return QString("names have no prefix here: \"%1\"").arg(local);
}

/** An attribute of XML itself, or of a schema. */
bool isOfXml(const QString &attribute)
{
    const QString prefix = attribute.section(QLatin1Char(':'), 0, 0);
    return prefix == QLatin1String("xmlns") || prefix == QLatin1String("xml") ||
           prefix == QLatin1String("xsi");
}

/** The row of the entries in a container of the same name; null for any other element. */
const PxElementRow *entriesOfSameName(const PxElementRow &row)
{
    const bool isContainer =
        row.children.size() == 1 && qstrcmp(row.children.begin()->name, row.name) == 0;
    return isContainer ? row.children.begin() : nullptr;
}

/** For an element whose text may have been written as an attribute; empty for all others. */
QString hintForText(const PxSourceElement &element, const PxElementRow &row)
{
    return row.text == PxTextKind::None ? QString()
                                        : PxElementReading(element, row).missingText().hint;
}

/** Whether the author took a container for one of its entries, which another check reports. */
bool isMeantAsEntry(const PxSourceElement &element, const PxElementRow &row)
{
    const PxElementRow *entries = entriesOfSameName(row);
    return entries && std::any_of(element.attributes.begin(), element.attributes.end(),
                                  [entries](const PxSourceAttribute &attribute) {
                                      return PxFormat::attribute(*entries, attribute.name);
                                  });
}

} // namespace

void PxFormatCheck::run()
{
    checkElement({m_root, PxFormat::root(m_kind), nullptr, nullptr});
}

bool PxFormatCheck::isOfKind(const PxSourceElement &root, PxFileKind kind)
{
    const QString name = nameOf(PxFormat::root(kind));
    switch (kind) {
    case PxFileKind::Product:
        return root.firstChild("product");
    case PxFileKind::Theme:
        return root.name.toLower() == name;
    case PxFileKind::ProductTypes:
        return root.name == name;
    default:
        return true;
    }
}

void PxFormatCheck::checkElement(const Place &place) const
{
    checkAttributes(place);
    checkText(place);
    checkChildren(place);
}

void PxFormatCheck::checkAttributes(const Place &place) const
{
    const PxElementRow *entry = entriesOfSameName(place.row);
    for (const PxSourceAttribute &attribute : place.element.attributes) {
        const PxAttributeRow *row = PxFormat::attribute(place.row, attribute.name);
        if (row)
            PxValueCheck(place.element, *row, attribute, m_report).run();
        else if (!isOfXml(attribute.name) &&
                 !(entry && PxFormat::attribute(*entry, attribute.name)))
            addUnknownAttribute(place, attribute);
    }
}

void PxFormatCheck::addUnknownAttribute(const Place &place,
                                        const PxSourceAttribute &attribute) const
{
    const QString local = localName(attribute.name);
    const bool hasPrefix = local != attribute.name;
    if (hasPrefix ? !PxFormat::attribute(place.row, local)
                  : !place.parent && ownersOf(attribute.name, place).isEmpty())
        return; // of another application, or a note about the file as a whole, as its version

    const QString asText = hintForText(place.element, place.row);
    // Its neighbour was written in the same way, and has been reported.
    if (!asText.isEmpty() && place.before && place.before->name == place.element.name &&
        !hintForText(*place.before, place.row).isEmpty())
        return;
    m_report
        .add(PxTag::AttributeUnknown, attribute.nameRange, "\"%1\" is not read on \"%2\"",
             PxMessageText::shortened(attribute.name), PxMessageText::shortened(place.element.name))
        .now([&] {
            const QString meant = meantBy(attribute, place);
            const PxAttributeRow *row = PxFormat::attribute(place.row, meant);
            return row ? QString("\"%1\" is missing: %2")
                             .arg(meant, PxMissingValue::text(place.element, *row))
                       : "it is passed over";
        })
        .hint([&] { return hasPrefix ? withoutPrefix(local) : hintFor(attribute, place); })
        .replacement([&] {
            const QString meant = meantBy(attribute, place);
            return meant.compare(attribute.name, Qt::CaseInsensitive) == 0 ? meant : QString();
        });
}

/** The attribute that is probably misspelt; empty if the name rather belongs elsewhere. */
QString PxFormatCheck::meantBy(const PxSourceAttribute &unknown, const Place &place) const
{
    if (unknown.name.contains(QLatin1Char(':')) || !hintForText(place.element, place.row).isEmpty())
        return QString();
    const QString meant = PxElementReading(place.element, place.row).meant(unknown.name);
    // The same letters are a better guess than another element, and that one than other letters.
    const bool isSame = meant.compare(unknown.name, Qt::CaseInsensitive) == 0;
    return isSame || ownersOf(unknown.name, place).isEmpty() ? meant : QString();
}

QString PxFormatCheck::hintFor(const PxSourceAttribute &unknown, const Place &place) const
{
    if (unknown.name != unknown.name.trimmed())
        return "a no-break space or the like belongs to the name: write a plain blank";
    const QString asText = hintForText(place.element, place.row);
    if (!asText.isEmpty())
        return asText;
    const QString meant = meantBy(unknown, place);
    if (!meant.isEmpty())
        return PxSpelling::didYouMean(meant);
    const QStringList owners = ownersOf(unknown.name, place);
    if (!owners.isEmpty())
        return QString("it is read on %1").arg(PxMessageText::quotedList(owners));
    const QStringList names = PxFormat::attributeNames(place.row);
    return names.isEmpty() || names.size() > PxCheckLimits::listedWords
               ? QString()
               : QString(names.size() == 1 ? "its only attribute is %1" : "its attributes are %1")
                     .arg(PxMessageText::quotedList(names));
}

/** A hint for a text that belongs into the only attribute, or into width and height. */
QString PxFormatCheck::asAttributes(const QString &text, const PxElementRow &row)
{
    static const QRegularExpression ourSize("^([0-9]{1,6})\\s*[x×*]\\s*([0-9]{1,6})$");
    const QRegularExpressionMatch size = ourSize.match(text);
    if (size.hasMatch() && PxFormat::attribute(row, "width") && PxFormat::attribute(row, "height"))
        return QString("write width=\"%1\" height=\"%2\"").arg(size.captured(1), size.captured(2));
    return row.attributes.size() == 1
               ? QString("write it as %1=\"%2\"")
                     .arg(row.attributes.begin()->name, PxMessageText::shortened(text))
               : QString();
}

void PxFormatCheck::checkText(const Place &place) const
{
    if (place.row.text != PxTextKind::None)
        return;
    // There each piece of text counts as an element, which another check reports.
    if (m_kind == PxFileKind::Theme &&
        (!place.parent || place.element.name == QLatin1String("keyaccounts")))
        return;
    const QVector<PxSourceNode> &nodes = place.element.nodes;
    const auto text = std::find_if(nodes.begin(), nodes.end(),
                                   [](const PxSourceNode &node) { return node.isText(); });
    if (text == nodes.end())
        return;
    const PxRows<PxElementRow> &children = place.row.children;
    const bool isOfChild = children.size() == 1 && children.begin()->text != PxTextKind::None;
    m_report
        .add(PxTag::TextNotRead, text->range, "the text \"%1\" is not read in \"%2\"",
             PxMessageText::shortened(text->text.left(PxCheckLimits::messageLength).simplified()),
             PxMessageText::shortened(place.element.name))
        .now("it is passed over")
        .hint(isOfChild ? QString("put it into a \"%1\" element").arg(nameOf(*children.begin()))
                        : asAttributes(text->text.trimmed(), place.row));
}

void PxFormatCheck::checkChildren(const Place &place) const
{
    QHash<QString, const PxSourceElement *> first;
    bool isFlat = false;
    const PxSourceElement *before = nullptr;
    for (int i = 0; i < place.element.children.size(); ++i) {
        const PxSourceElement *child = place.element.children.at(i);
        const PxElementRow *row = PxFormat::child(place.row, child->name);
        const PxSourceElement *neighbour = before;
        before = child;
        if (!row) {
            addUnknownElement(place, i);
            continue;
        }
        isFlat = isFlat || isMeantAsEntry(*child, *row);
        const bool isRepeated =
            row->occurrence == PxOccurrence::First && first.contains(child->name);
        if (!isRepeated) {
            first.insert(child->name, child);
            checkElement({*child, *row, &place.row, neighbour});
        } else if (!isFlat || !entriesOfSameName(*row)) {
            addRepeated(place, *child, *first.value(child->name));
        }
    }
}

void PxFormatCheck::addRepeated(const Place &place, const PxSourceElement &child,
                                const PxSourceElement &first) const
{
    const PxElementRow &row = *PxFormat::child(place.row, child.name);
    QString hint = "keep the one that is meant";
    if (!place.parent && row.children.size() > 1)
        hint = QString("give each \"%1\" a file of its own").arg(child.name);
    else if (!row.children.isEmpty())
        hint = "move what it holds into the first one";
    m_report
        .add(PxTag::ElementRepeated, child.nameRange, "another \"%1\" in \"%2\"", child.name,
             place.element.name)
        .now("only the first one is read, in %1", m_report.place(first.nameRange))
        .hint(hint);
}

void PxFormatCheck::addUnknownElement(const Place &place, int index) const
{
    const PxSourceElement &child = *place.element.children.at(index);
    const QString local = localName(child.name);
    const bool hasPrefix = local != child.name;
    if (hasPrefix && !PxFormat::child(place.row, local))
        return; // of another application
    const QString now = place.row.text == PxTextKind::None
                            ? "nothing in it is read"
                            : QString("its text counts as text of \"%1\"").arg(place.element.name);
    const PxElementRow *owner = hasPrefix ? nullptr : parentOf(child.name, place);
    if (owner) {
        addMisplaced(place, index, *owner, now);
        return;
    }
    m_report
        .add(PxTag::ElementUnknown, child.nameRange, "\"%1\" is not read in \"%2\"",
             PxMessageText::shortened(child.name), PxMessageText::shortened(place.element.name))
        .now(now)
        .hint([&] {
            if (hasPrefix)
                return withoutPrefix(local);
            const QStringList siblings = PxFormat::childNames(place.row);
            const QString sibling = PxSpelling::hint(local, siblings);
            const QString near =
                sibling.isEmpty() ? PxSpelling::hint(local, elementNames()) : sibling;
            return near.isEmpty() && place.parent ? PxSpelling::oneOf(siblings) : near;
        });
}

/** Reports neighbours of one name once: they lack the same container. */
void PxFormatCheck::addMisplaced(const Place &place, int index, const PxElementRow &owner,
                                 const QString &now) const
{
    const QVector<const PxSourceElement *> &siblings = place.element.children;
    const PxSourceElement &child = *siblings.at(index);
    if (index > 0 && siblings.at(index - 1)->name == child.name)
        return;
    const auto end =
        std::find_if(siblings.begin() + index, siblings.end(),
                     [&](const PxSourceElement *sibling) { return sibling->name != child.name; });
    const int count = int(end - siblings.begin()) - index;
    const QString into = &owner == &PxFormat::root(m_kind) ? "the document element"
                                                           : PxMessageText::quoted(nameOf(owner));
    const char *what = count == 1 ? "it" : "them";
    m_report
        .add(PxTag::ElementMisplaced, child.nameRange,
             count == 1 ? "\"%1\" directly below \"%2\" is not read"
                        : "%3 \"%1\" directly below \"%2\" are not read",
             child.name, place.element.name, count)
        .now(now)
        .hint(&owner == place.parent ? "move %1 out, into %2" : "put %1 into %2", what, into);
}

/** The nearest element that an element of this name belongs into; null if there is none. */
const PxElementRow *PxFormatCheck::parentOf(const QString &element, const Place &from) const
{
    const auto isParent = [&element](const PxElementRow &row) {
        return PxFormat::isChildName(row, element);
    };
    for (const PxElementRow &child : from.row.children) {
        if (isParent(child))
            return &child;
    }
    if (from.parent && isParent(*from.parent))
        return from.parent;
    const PxElementRow *first = nullptr;
    forEachRow(PxFormat::root(m_kind), [&](const PxElementRow &row) {
        if (!first && isParent(row))
            first = &row;
    });
    return first;
}

/** The elements that have an attribute of this name; only the nearest ones. */
QStringList PxFormatCheck::ownersOf(const QString &attribute, const Place &from) const
{
    QStringList below;
    for (const PxElementRow &child : from.row.children) {
        if (PxFormat::attribute(child, attribute))
            below.append(QLatin1String(child.name));
    }
    if (!below.isEmpty())
        return below;
    if (from.parent && PxFormat::attribute(*from.parent, attribute))
        return {QLatin1String(from.parent->name)};
    QStringList all;
    forEachRow(PxFormat::root(m_kind), [&](const PxElementRow &row) {
        if (PxFormat::attribute(row, attribute))
            all.append(QLatin1String(row.name));
    });
    all.removeDuplicates(); // elements of one name stand in several places
    return all;
}

/** The usual names of all elements. */
QStringList PxFormatCheck::elementNames() const
{
    QStringList names;
    forEachRow(PxFormat::root(m_kind),
               [&names](const PxElementRow &row) { names += PxFormat::childNames(row); });
    return names;
}
