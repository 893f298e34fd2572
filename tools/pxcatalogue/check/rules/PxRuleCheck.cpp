#include "check/rules/PxRuleCheck.h"

#include "format/PxFormat.h"

#include <algorithm>

namespace {

/** The children with this row that the library reads. */
QVector<const PxSourceElement *> childrenRead(const PxSourceElement &parent,
                                              const PxElementRow &row)
{
    if (row.occurrence == PxOccurrence::AnyName)
        return parent.children;
    return parent.childrenNamed(row.name).mid(0, row.occurrence == PxOccurrence::First ? 1 : -1);
}

PxMissingPart partOf(const PxRule &rule, const PxElementReading &reading)
{
    if (rule.test.kind == PxRule::Test::Kind::HasChild)
        return reading.missingChild(rule.name);
    return rule.name ? reading.missing(rule.name) : reading.missingText();
}

} // namespace

void PxRuleCheck::run()
{
    for (const PxRule *begin = m_rules.begin(); begin != m_rules.end();) {
        const PxRule *end = std::find_if(begin, m_rules.end(), [begin](const PxRule &rule) {
            return qstrcmp(rule.path, begin->path) != 0;
        });
        checkPath(begin, end);
        begin = end;
    }
}

/** Goes element by element, as only the first of many findings are listed. */
void PxRuleCheck::checkPath(const PxRule *begin, const PxRule *end)
{
    const PxElementRow *row = &m_startRow;
    QVector<const PxSourceElement *> elements{&m_start};
    for (const QString &name : QString(begin->path).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        row = PxFormat::child(*row, name);
        QVector<const PxSourceElement *> below;
        for (const PxSourceElement *element : qAsConst(elements))
            below += childrenRead(*element, *row);
        elements = below;
    }
    for (const PxSourceElement *element : qAsConst(elements))
        checkElement(*element, *row, begin, end);
}

void PxRuleCheck::checkElement(const PxSourceElement &element, const PxElementRow &row,
                               const PxRule *begin, const PxRule *end)
{
    if (m_parent != element.parent)
        m_known.clear();
    m_parent = element.parent;
    const PxElementReading reading(element, row);
    bool hasFailed = false;
    for (const PxRule *rule = begin; rule != end; ++rule) {
        if (hasFailed && qstrcmp(rule->name, (rule - 1)->name) == 0)
            continue;
        hasFailed = false;
        if (rule->needs && element.value(rule->needs).isEmpty())
            continue;
        const PxSourceAttribute *attribute = rule->name ? element.attribute(rule->name) : nullptr;
        Value value{attribute    ? attribute->value
                    : rule->name ? QString()
                                 : element.dom.text().trimmed(),
                    attribute || !rule->name};
        hasFailed = !holds(*rule, reading, &value);
        if (hasFailed)
            add(*rule, reading, value);
    }
}

/** Sets the value to what the texts of a finding quote. */
bool PxRuleCheck::holds(const PxRule &rule, const PxElementReading &reading, Value *value)
{
    using Kind = PxRule::Test::Kind;
    switch (rule.test.kind) {
    case Kind::Given:
        return value->isGiven;
    case Kind::HasChild:
        return reading.element().firstChild(rule.name);
    case Kind::NotEmpty:
        return !value->text.isEmpty();
    case Kind::NotBlank:
        return !value->text.trimmed().isEmpty();
    case Kind::AtLeast:
        if (!value->isGiven || reading.number(rule.name, rule.test.least) >= rule.test.least)
            return true; // also if it cannot be read
        value->text = QString::number(reading.number(rule.name));
        return false;
    case Kind::Matching:
        return !value->isGiven || rule.test.matches(value->text);
    case Kind::Unique:
        return isFirst(rule, reading.element(), value);
    }
    return true;
}

bool PxRuleCheck::isFirst(const PxRule &rule, const PxSourceElement &element, Value *value)
{
    if (rule.test.key)
        value->text = rule.test.key(value->text);
    if (value->text.isEmpty())
        return true;
    const PxSourceElement *&known = m_known[{&rule, value->text}];
    value->sameBefore = known;
    known = &element;
    return !value->sameBefore;
}

void PxRuleCheck::add(const PxRule &rule, const PxElementReading &reading, const Value &value) const
{
    const PxMissingPart part = partOf(rule, reading);
    const QString needed = rule.needs ? reading.element().value(rule.needs) : QString();
    PxAddedFinding finding =
        value.sameBefore ? m_report.add(rule.tag, part.range, rule.message, value.text, rule.name,
                                        m_report.place(value.sameBefore->nameRange))
                         : m_report.add(rule.tag, part.range, rule.message, value.text, rule.name);
    if (rule.now.function)
        finding.now([&] { return rule.now.function(value.text); });
    else
        finding.now(rule.now.text, value.text, rule.name, needed);
    finding.hint([&] {
        return part.hintOr(rule.hint.function ? rule.hint.function(value.text) : rule.hint.text);
    });
}
