#include "origins/PxOriginRule.h"

#include <QHash>

namespace {

constexpr struct
{
    const char *prefix;
    PxOriginFile PxOriginFiles::*file;
} files[] = {
    {"", &PxOriginFiles::product},          {"user", &PxOriginFiles::userDefaults},
    {"theme", &PxOriginFiles::theme},       {"type", &PxOriginFiles::type},
    {"replaced", &PxOriginFiles::replaced}, {"successor", &PxOriginFiles::successor},
};

constexpr struct
{
    const char *prefix;
    PxOriginTerm::Kind kind;
} otherKinds[] = {
    {"asked", PxOriginTerm::Kind::Question},
    {"clock", PxOriginTerm::Kind::Clock},
    {"file", PxOriginTerm::Kind::ProductFile},
};

/** The inputs before or behind the ";". */
QVector<PxOriginRule::Alternatives> parsed(const QString &inputs)
{
    QVector<PxOriginRule::Alternatives> terms;
    for (const QString &alternatives : inputs.split(' ', Qt::SkipEmptyParts)) {
        terms.append(PxOriginRule::Alternatives());
        for (const QString &term : alternatives.split('|'))
            terms.last().append(PxOriginTerm(term));
    }
    return terms;
}

QString tableOf(const QString &pattern)
{
    const QString table = pattern.section('*', 0, 0) + '*';
    return pattern.contains('*') && pattern != table ? table : QString();
}

} // namespace

PxOriginTerm::PxOriginTerm(const QString &term)
{
    if (term.startsWith('/')) {
        kind = Kind::Value;
        pointer = term;
        section = term.section('/', 1, 1);
        return;
    }
    const QString prefix = term.contains(':') ? term.section(':', 0, 0) : QString();
    for (const auto &row : otherKinds) {
        if (prefix == row.prefix)
            kind = row.kind;
    }
    for (const auto &row : files) {
        if (prefix == row.prefix)
            file = row.file;
    }
    const QString elements = term.section(':', -1).section('@', 0, 0);
    for (const QString &step : elements.split('/', Qt::SkipEmptyParts))
        path.append(step.toUtf8());
    attribute = term.section('@', 1);
    isOneOfSeveral = term.contains('[');
}

PxOriginRule::PxOriginRule(const PxOriginRow &row)
    : when(row.when)
    , pattern(row.pointer)
    , table(tableOf(pattern))
    , rule(QString::fromUtf8(row.rule))
    , isFormula(rule.contains('%'))
    , inputs(parsed(QString(row.inputs).section(';', 0, 0)))
    , choosing(parsed(QString(row.inputs).section(';', 1, 1)))
{}

const QVector<PxOriginRules> &PxOriginRules::all()
{
    static const auto &ourRules = *[] {
        const auto all = new QVector<PxOriginRules>;
        for (const PxOriginRow &row : PxOriginRows::all()) { // those of a pattern stand together
            const PxOriginRule rule(row);
            if (all->isEmpty() || all->constLast().pattern != rule.pattern)
                all->append({rule.pattern, rule.pattern.section('/', 1, 1), {}});
            all->last().rules.append(rule);
        }
        return all;
    }();
    return ourRules;
}

const PxOriginRules *PxOriginRules::of(const QString &pattern)
{
    static const auto &ourIndexes = *[] {
        const auto indexes = new QHash<QString, int>;
        for (int i = 0; i < all().size(); ++i)
            indexes->insert(all()[i].pattern, i);
        return indexes;
    }();
    const int index = ourIndexes.value(pattern, -1);
    return index < 0 ? nullptr : &all()[index];
}
