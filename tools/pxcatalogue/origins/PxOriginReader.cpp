#include "origins/PxOriginReader.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "format/PxFormat.h"
#include "report/PxReport.h"
#include "report/PxShownProduct.h"

#include <PxListParts.h>
#include <PxXMLParser.h>

#include <QDateTime>
#include <QHash>
#include <QJsonArray>

#include <algorithm>
#include <iterator>

namespace {

using Kind = PxOrigin::Kind;
using When = PxOriginCase;

/** Whether one of the words is known, or at least means something else than the default. */
bool isReadAsKeywords(const QString &text, const PxAttributeRow &row)
{
    bool isAnyKnown = row.keywords == PxKeywordSet::Material; // unknown ones are kept as they are
    pxForEachPart(text, [&](QStringView part) {
        isAnyKnown = isAnyKnown || PxFormat::isKeyword(row.keywords, part.trimmed().toString());
    });
    return isAnyKnown || PxFormat::decode(row.keywords, text) !=
                             PxFormat::decode(row.keywords, QString::fromUtf8(row.defaultText));
}

/** Whether the library uses what is written, not the default. */
bool isRead(const PxSourceElement &element, const PxSourceAttribute &attribute,
            const PxAttributeRow &row)
{
    if (row.keywords != PxKeywordSet::None)
        return isReadAsKeywords(attribute.value, row);
    if (row.type == PxValueType::DateTime)
        return PxXMLParser::dateTimeAttribute(element.dom, attribute.name, QString()).isValid();
    const bool isEmptyDefault = row.defaultText && *row.defaultText == 0;
    return PxElementReading::isReadable(element, attribute, row) &&
           !(isEmptyDefault && attribute.value.isEmpty());
}

/** A pointer, or a pattern of pointers, for one row of a table. */
QString inRow(const QString &pattern, int row)
{
    return pattern.contains('*') ? QString(pattern).replace('*', QString::number(row)) : pattern;
}

bool isAsLargeAsCover(const PxPageType &type)
{
    switch (type.value()) {
    case PxPageTypeFullCover:
    case PxPageTypeClampCoverFront:
    case PxPageTypeClampCoverBack:
    case PxPageTypeCromolinen:
    case PxPageTypeLeather:
    case PxPageTypeArtificialLeather:
        return true;
    default:
        return false;
    }
}

} // namespace

PxOriginReader::PxOriginReader(const PxShownProduct &shown, const PxOriginFiles &files,
                               const PxReport &report)
    : m_shown(shown)
    , m_report(report)
    , m_files(files)
    , m_entries(shown, report, files)
{}

QMap<QString, PxOrigin> PxOriginReader::read()
{
    for (const PxOriginRules &value : PxOriginRules::all()) {
        const int rows = value.isOfWholeRow() ? 0 : rowsOf(value);
        for (int index = 0; index < rows; ++index)
            readRow(value, index);
    }
    removeUnprinted();
    return m_origins;
}

/** A product without a size has no width to point at, only the size, which is null. */
void PxOriginReader::removeUnprinted()
{
    QHash<QString, bool> known; // many origins name the same values
    const auto isPrinted = [&](const QString &pointer) {
        const auto found = known.constFind(pointer);
        return found != known.constEnd() ? *found : *known.insert(pointer, m_report.has(pointer));
    };
    for (auto origin = m_origins.begin(); origin != m_origins.end();) {
        for (PxOrigin::Part &part : origin->from) {
            while (!isPrinted(part.text))
                part.text.truncate(part.text.lastIndexOf('/'));
        }
        origin = isPrinted(origin.key()) ? std::next(origin) : m_origins.erase(origin);
    }
}

/** How many values a pattern has: 1 unless it is about the rows of a table. */
int PxOriginReader::rowsOf(const PxOriginRules &value) const
{
    const PxReport::Section *section = m_report.find(value.section);
    if (!section)
        return m_report.has('/' + value.section) ? 1 : 0;
    return value.isOfRows() ? qMin(section->rows.size(), PxOriginEntries::maximumRows) : 1;
}

void PxOriginReader::readRow(const PxOriginRules &value, int index)
{
    if (const PxOriginRule *rule = ruleFor(value, index))
        m_origins.insert(inRow(value.pattern, index), originOf(*rule, index));
}

/** The first that holds; null if none does. */
const PxOriginRule *PxOriginReader::ruleFor(const PxOriginRules &value, int index) const
{
    const auto found = std::find_if(value.rules.begin(), value.rules.end(),
                                    [&](const PxOriginRule &rule) { return holds(rule, index); });
    return found == value.rules.end() ? nullptr : &*found;
}

bool PxOriginReader::holds(const PxOriginRule &rule, int index) const
{
    const PxProductTypeDescription &product = *m_shown.product;
    const auto isClass = [this](PxProductClass classes) {
        return m_shown.type.isProductClass(classes);
    };
    switch (rule.when) {
    case When::Always:
        return true;
    case When::Given: {
        const Inputs inputs = inputsOf(rule, rule.inputs, index);
        return !inputs.isEmpty() && !inputs.constFirst().isDefault;
    }
    case When::Written:
        return input(rule.inputs.constFirst(), index).isWritten;
    case When::Missing:
        return std::any_of(rule.inputs.begin(), rule.inputs.end(),
                           [&](const auto &terms) { return !input(terms, index).isThere; });
    case When::Asked:
        return m_shown.isPageCountAsked;
    case When::Sold:
        return product.defaultSellingPages() > 0;
    case When::Legacy:
        return m_shown.isLegacy();
    case When::Book:
        return isClass(PxProductClassBook);
    case When::Calendar:
        return isClass(PxProductClassCalendar);
    case When::Pieces:
        return isClass(PxProductClassGift) || isClass(PxProductClassCard) ||
               isClass(PxProductClassDecoration);
    case When::WideSpines:
        // The library widens all spines if the smallest one is not 0 wide.
        return isClass(PxProductClassBook) && product.spineWidth(product.minPages()) > 0;
    case When::Spines:
        return isClass(PxProductClassBook) && product.minPages() <= product.maxPages();
    case When::NoSpine:
        return isClass(PxProductClassBook) && !m_entries.find("spine[shown]", 0).element;
    case When::Simplex:
        return product.isSimplex();
    default:
        return holdsForPage(rule.when, index);
    }
}

bool PxOriginReader::holdsForPage(PxOriginCase when, int index) const
{
    const PxPageType type = m_shown.kinds.value(index).pageType();
    switch (when) {
    case When::SpineKind:
        return type.hasValue(PxPageTypeSpine);
    case When::CoverSize:
        return isAsLargeAsCover(type);
    case When::CoverBleed:
        return type.matches(PxPageTypeCover);
    case When::NormalPage:
        return type.matches(PxPageTypeNormalPage);
    case When::WhitePage:
        return !m_shown.themeId.isEmpty() && type.hasValue(PxPageTypeEmptyPage);
    default:
        return false;
    }
}

PxOrigin PxOriginReader::originOf(const PxOriginRule &rule, int index) const
{
    const Inputs inputs = inputsOf(rule, rule.inputs, index);
    Inputs choosing = inputsOf(rule, rule.choosing, index);
    if (const PxOriginRules *table = PxOriginRules::of(rule.table)) {
        if (const PxOriginRule *whole = ruleFor(*table, index))
            choosing += inputsOf(*whole, whole->choosing, index);
    }
    PxOrigin origin;
    if (rule.isFormula)
        origin.formula = inputs.isEmpty() ? QVector<PxOrigin::Part>() : filled(rule.rule, inputs);
    else
        origin.rule = rule.rule;
    if (!inputs.isEmpty())
        origin.kind = rule.rule.isNull() ? inputs.constFirst().kind : Kind::Computed;
    for (const Input &input : inputs) {
        if (origin.place.path.isEmpty())
            origin.place = input.place;
        if (input.kind == Kind::Clock)
            origin.kind = Kind::Clock;
    }
    for (const Input &input : inputs + choosing) {
        const PxOrigin::Part part = input.part();
        const bool isItself = rule.rule.isNull() && part == PxOrigin::Part{QString(), origin.place};
        if (input.isNamed() && !isItself && !origin.from.contains(part))
            origin.from.append(part);
    }
    if (origin.kind == Kind::Theme)
        origin.rule = "theme " + m_shown.themeId;
    if (origin.kind == Kind::UserDefaults) // whose file is found by the name in the product file
        origin.from.append(inputAt(PxOriginTerm("@name"), 0).part());
    return origin;
}

PxOriginReader::Inputs PxOriginReader::inputsOf(const PxOriginRule &rule,
                                                const QVector<PxOriginRule::Alternatives> &terms,
                                                int index) const
{
    Inputs inputs;
    for (const PxOriginRule::Alternatives &alternatives : terms) {
        Input found = input(alternatives, index);
        if (rule.when == When::Written && inputs.isEmpty())
            found.isThere = found.isWritten; // even if it means nothing
        Input absent;
        absent.value = found.value;
        if (found.isThere || rule.isFormula)
            inputs.append(found.isThere ? found : absent);
        if (found.place.line > 0)
            inputs += furtherLists(alternatives.constFirst());
    }
    // A formula needs all its inputs, but at least one that is there.
    const bool isAny =
        std::any_of(inputs.begin(), inputs.end(), [](const Input &input) { return input.isThere; });
    if (!isAny)
        return {};
    for (Input &input : inputs) {
        // Of the numbers in formulas only the size of a page has no default: the library reads -1.
        if (!input.isThere && input.value.isEmpty())
            input.value = "-1";
    }
    return inputs;
}

/** The other elements with that name, if the library reads them, too. */
PxOriginReader::Inputs PxOriginReader::furtherLists(const PxOriginTerm &term) const
{
    constexpr int most = 10; // nobody writes as many
    Inputs inputs;
    if (!term.attribute.isEmpty() || term.file != &PxOriginFiles::product || term.isOneOfSeveral)
        return inputs;
    const PxOriginElement first = elementAt(term, 0);
    if (!first.element || first.file->rowOf(*first.element)->occurrence != PxOccurrence::Any)
        return inputs;
    const QByteArray name = first.element->name.toUtf8();
    for (const PxSourceElement *list : first.element->parent->childrenNamed(name).mid(1, most))
        inputs.append(inputOf({first.file, list}));
    return inputs;
}

/** The first alternative that says something; the last one if none does. */
PxOriginReader::Input PxOriginReader::input(const PxOriginRule::Alternatives &alternatives,
                                            int index) const
{
    Input found;
    for (const PxOriginTerm &term : alternatives) {
        found = inputAt(term, index);
        if (found.isThere && !found.isDefault)
            break;
    }
    return found;
}

PxOriginReader::Input PxOriginReader::inputAt(const PxOriginTerm &term, int index) const
{
    Input input;
    input.isThere = true;
    switch (term.kind) {
    case PxOriginTerm::Kind::Value:
        input.isThere = m_report.find(term.section); // a theme may not be
        input.pointer = inRow(term.pointer, index);
        return input;
    case PxOriginTerm::Kind::Question:
        input.kind = Kind::Question;
        return input;
    case PxOriginTerm::Kind::Clock:
        input.kind = Kind::Clock;
        return input;
    case PxOriginTerm::Kind::ProductFile:
        input.kind = Kind::File;
        input.place.path = m_files.product.path();
        return input;
    case PxOriginTerm::Kind::Element:
        break;
    }
    const PxOriginElement owner = elementAt(term, index);
    if (!term.attribute.isEmpty())
        return attributeOf(owner, term.attribute);
    return owner.element ? inputOf(owner) : Input();
}

PxOriginReader::Input PxOriginReader::inputOf(const PxOriginElement &element)
{
    Input input;
    input.isThere = true;
    input.kind = element.file->kind();
    input.place = element.file->place(element.element->nameRange);
    return input;
}

PxOriginElement PxOriginReader::elementAt(const PxOriginTerm &term, int index) const
{
    if (!term.file)
        return {};
    const PxOriginFile &file = m_files.*term.file;
    PxOriginElement found{&file, file.element()};
    for (const QByteArray &step : term.path) {
        if (step.endsWith(']'))
            found = m_entries.find(step, index);
        else if (found.element)
            found.element = found.element->firstChild(step.constData());
    }
    return found;
}

PxOriginReader::Input PxOriginReader::attributeOf(const PxOriginElement &owner, const QString &name)
{
    Input input;
    const PxElementRow *element = owner.element ? owner.file->rowOf(*owner.element) : nullptr;
    const PxAttributeRow *row = element ? PxFormat::attribute(*element, name) : nullptr;
    const PxSourceAttribute *attribute =
        owner.element ? owner.element->attribute(name.toUtf8().constData()) : nullptr;
    if (!row)
        return input;
    const QString defaultText = QString::fromUtf8(row->defaultText);
    input.value = defaultText;
    if (!attribute)
        return input;
    input.isWritten = !attribute->value.isEmpty();
    input.isThere = isRead(*owner.element, *attribute, *row);
    input.isDefault = row->defaultText && attribute->value.trimmed() == defaultText;
    input.kind = owner.file->kind();
    input.place = owner.file->place(attribute->nameRange);
    if (input.isThere)
        input.value = PxMessageText::shortened(attribute->value);
    return input;
}

/** The rule with the inputs, and their places, for %1, %2 and so on. */
QVector<PxOrigin::Part> PxOriginReader::filled(const QString &rule, const Inputs &inputs) const
{
    QVector<PxOrigin::Part> parts;
    for (int i = 0; i < rule.size(); ++i) {
        const bool isNumber = rule[i] == '%' && i + 1 < rule.size() && rule[i + 1].isDigit();
        if (!isNumber) {
            parts.append({QString(rule[i])});
            continue;
        }
        const Input input = inputs.value(rule[++i].digitValue() - 1);
        if (!input.pointer.isEmpty())
            parts += m_origins.value(input.pointer).parts();
        else if (input.place.line > 0)
            parts += {{input.value + " ("}, input.part(), {")"}};
        else
            parts.append({input.value});
    }
    return parts;
}
