#include "diff/PxDiffText.h"

#include "diff/PxDiffWords.h"
#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

constexpr struct
{
    PxDiffOfKind PxDiff::*kind;
    const char *heading;
    const char *prefix;
    const char *suffix;
} kindRows[] = {
    {&PxDiff::products, "Products", "", ""},
    {&PxDiff::legacyProducts, "Products of earlier catalogues", "", " (of an earlier catalogue)"},
    {&PxDiff::themes, "Themes", "theme ", ""},
};

bool hasChanges(const PxChangedObject &object, bool forCustomers)
{
    return std::any_of(object.changes.begin(), object.changes.end(),
                       [forCustomers](const PxChange &change) {
                           return change.key->forCustomers == forCustomers;
                       });
}

bool hasNames(const PxDiffOfKind &diff)
{
    return !diff.added.isEmpty() || !diff.removed.isEmpty() || !diff.renamed.isEmpty();
}

bool hasAny(const PxDiff &diff, bool forCustomers)
{
    return std::any_of(std::begin(kindRows), std::end(kindRows), [&](const auto &row) {
        const PxDiffOfKind &kind = diff.*row.kind;
        return (forCustomers && hasNames(kind)) ||
               std::any_of(kind.changed.begin(), kind.changed.end(),
                           [forCustomers](const PxChangedObject &object) {
                               return hasChanges(object, forCustomers);
                           });
    });
}

/** Whether both are one change in words: the next page counts gained or lost as much. */
bool isContinuedBy(const PxChange &change, const PxChange &next)
{
    return change.dependsOnPageCount() && next.begin == change.end &&
           next.pointer == change.pointer && !PxDiffWords::ofDifference(change).isEmpty() &&
           PxDiffWords::ofDifference(change) == PxDiffWords::ofDifference(next);
}

QString lineOf(const PxChange &first, const PxChange &last)
{
    QStringList label{first.row, first.key->label};
    label.removeAll(QString());
    QString line = label.join(", ");
    if (first.dependsOnPageCount()) {
        line += QString(" for %1").arg(first.firstPageCount);
        if (last.lastPageCount != first.firstPageCount)
            line += QString(" to %1").arg(last.lastPageCount);
        line += last.lastPageCount == 1 ? " page" : " pages";
    }
    line += ": " + PxDiffWords::of(first, last);
    return first.place.isEmpty() ? line : QString("%1 (%2)").arg(line, first.place);
}

} // namespace

PxOutputText PxDiffText::of(const PxDiff &diff, Form form)
{
    PxDiffText text(form);
    text.addChanges(diff, true);
    text.addChanges(diff, false);
    return text.m_text;
}

void PxDiffText::addChanges(const PxDiff &diff, bool forCustomers)
{
    if (!hasAny(diff, forCustomers))
        return;
    addHeading(forCustomers ? "What customers notice" : "What only production notices");
    for (const auto &row : kindRows) {
        const PxDiffOfKind &kind = diff.*row.kind;
        if (forCustomers)
            addNames(row.heading, kind);
        for (const PxChangedObject &object : kind.changed) {
            if (hasChanges(object, forCustomers))
                addObject(row.prefix + object.name + row.suffix, object, forCustomers);
        }
    }
}

void PxDiffText::addNames(const QString &kind, const PxDiffOfKind &diff)
{
    if (!diff.added.isEmpty())
        addItem(QString("%1 added: %2").arg(kind, diff.added.join(", ")));
    if (!diff.removed.isEmpty())
        addItem(QString("%1 removed: %2").arg(kind, diff.removed.join(", ")));
    for (const PxRenamedProduct &product : diff.renamed)
        addItem(QString("%1 renamed: %2 to %3 (code %4)")
                    .arg(kind, product.from, product.to, QString::number(product.code)));
}

void PxDiffText::addObject(const QString &name, const PxChangedObject &object, bool forCustomers)
{
    addObjectName(name);
    for (const QString &line : linesOf(object.changes, forCustomers))
        addItemOfObject(line);
}

QStringList PxDiffText::linesOf(const QVector<PxChange> &changes, bool forCustomers)
{
    QStringList lines;
    for (int i = 0; i < changes.size(); ++i) {
        if (changes[i].key->forCustomers != forCustomers)
            continue;
        const int first = i;
        while (i + 1 < changes.size() && isContinuedBy(changes[i], changes[i + 1]))
            ++i;
        lines.append(lineOf(changes[first], changes[i]));
    }
    return lines;
}

void PxDiffText::addHeading(const QString &text)
{
    if (!m_isEmpty)
        m_text.addLine(QString());
    m_isEmpty = false;
    m_text.addLine(isMarkdown() ? "## " + text : text);
    if (isMarkdown())
        m_text.addLine(QString());
}

void PxDiffText::addItem(const QString &text)
{
    m_text.addLine((isMarkdown() ? "- " : "  ") + shown(text));
}

void PxDiffText::addObjectName(const QString &text)
{
    m_text.addLine(isMarkdown() ? "- **" + shown(text) + "**" : "  " + text);
}

void PxDiffText::addItemOfObject(const QString &text)
{
    m_text.addLine((isMarkdown() ? "  - " : "    ") + shown(text));
}

/** A text of which Markdown shows every character; a "_" inside a word is one anyway. */
QString PxDiffText::shown(const QString &text) const
{
    if (!isMarkdown())
        return text;
    const QString visible = PxVisibleText::line(text);
    const auto isWord = [&visible](int i) {
        return i >= 0 && i < visible.size() && visible[i].isLetterOrNumber();
    };
    QString markdown;
    for (int i = 0; i < visible.size(); ++i) {
        const bool isMarkup = visible[i] == '_' ? !isWord(i - 1) || !isWord(i + 1)
                                                : QString("\\`*[]<>|&#~").contains(visible[i]);
        markdown += isMarkup ? QString('\\') + visible[i] : visible[i];
    }
    return markdown;
}
