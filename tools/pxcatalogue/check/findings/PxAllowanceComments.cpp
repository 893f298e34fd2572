#include "check/findings/PxAllowanceComments.h"

#include "check/words/PxSpelling.h"

#include <QRegularExpression>

#include <limits>

static constexpr int maximumLength = 500; // of a comment; the tag is among its first characters

/** Whether the element is the document element of a theme file. */
static bool isOfThemes(const PxSourceElement &element)
{
    return !element.parent &&
           element.name.compare(QLatin1String("themes"), Qt::CaseInsensitive) == 0;
}

/** Whether the element is one of the themes of a theme file. */
static bool isTheme(const PxSourceElement &element)
{
    return element.parent && isOfThemes(*element.parent);
}

void PxAllowanceComments::find(Checked checked)
{
    // A file that cannot be read is not checked, so all its allowances would seem to be unused.
    if (!m_file.root())
        return;
    const PxSourceDocument &source = m_file.source();
    QVector<PxSourceNode> others = findIn(source.prolog(), {source.root()}, nullptr, checked);
    source.forEachElement([&](const PxSourceElement &element) {
        others += findIn(element.nodes, element.children, &element, checked);
    });
    // Last, because an allowance that comes later in the file may silence these findings.
    for (const PxSourceNode &node : qAsConst(others))
        checkNoAllowance(node);
}

/**
 * Registers the allowances among `nodes`. Each applies to the next of `elements`; both are in the
 * order of the file, and within `parent`, if there is one. Before a theme a comment would become a
 * theme, so one that comes first inside a theme applies to all of that. Returns the comments and
 * instructions that are no allowances.
 */
QVector<PxSourceNode> PxAllowanceComments::findIn(const QVector<PxSourceNode> &nodes,
                                                  const QVector<const PxSourceElement *> &elements,
                                                  const PxSourceElement *parent, Checked checked)
{
    static const QRegularExpression ourAllowance("^\\s*check:\\s*allow(?:\\s+(\\S+)|\\s*$)",
                                                 QRegularExpression::CaseInsensitiveOption);
    QVector<PxSourceNode> others;
    auto element = elements.begin();
    bool isFirst = true; // whether only comments and instructions come before the node
    for (const PxSourceNode &node : nodes) {
        isFirst = isFirst && !node.isText();
        if (node.isText())
            continue;
        const QRegularExpressionMatch allowance = ourAllowance.match(node.text.left(maximumLength));
        if (!allowance.hasMatch()) {
            others.append(node);
            continue;
        }
        while (element != elements.end() && (*element)->range.begin < node.range.end)
            ++element;
        const bool isLast = element == elements.end();
        const bool isOfTheme = isFirst && element == elements.begin() && parent && isTheme(*parent);
        PxPlace part = m_file.place(isOfTheme ? parent->range
                                    : isLast  ? node.range
                                              : (*element)->range);
        if (!isLast && *element == m_file.source().root()) {
            part.line = part.column = 1; // the whole file
            part.endLine = std::numeric_limits<int>::max();
        }
        // Between themes it is reported as a theme, whether it silences something or not.
        m_findings.allow(allowance.captured(1), m_file.place(node.range), part,
                         checked == Checked::Everything && !(parent && isOfThemes(*parent)));
    }
    return others;
}

/** Reports a comment that names a tag but misspells the words that allow it. */
void PxAllowanceComments::checkNoAllowance(const PxSourceNode &node) const
{
    static const QRegularExpression ourWords("^\\s*check\\s*:?\\s*([a-z]+)\\s*:?\\s+(\\S+)",
                                             QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch words = ourWords.match(node.text.left(maximumLength));
    const QString tag = words.captured(2);
    if (!words.hasMatch() || !PxCheckTags::find(tag) ||
        !PxSpelling::isNear(words.captured(1), "allow"))
        return;
    m_report
        .add(PxTag::AllowanceUnused, node.range, "the comment names \"%1\", but does not allow it",
             tag)
        .now("the comment silences nothing")
        .hint("write \"check: allow %1\"", tag);
}
