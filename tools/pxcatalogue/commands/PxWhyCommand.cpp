#include "commands/PxWhyCommand.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "format/PxCatalogueKeywords.h"
#include "why/PxWhyAnswer.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <limits>

namespace {

constexpr int any = std::numeric_limits<int>::max();

std::optional<PxProblem> problemOf(const PxCommandLine &line)
{
    // clang-format off
    constexpr struct { const char *option; const char *needed; const char *meaning; } needs[] = {
        {"key-account", "theme", "the theme that the account may order"},
        {"criterion", "compatible-with", "the product to compare with"},
    };
    // clang-format on
    for (const auto &row : needs) {
        if (line.isSet(row.option) && !line.isSet(row.needed))
            return PxProblem{
                QString("--%1 needs --%2, %3").arg(row.option, row.needed, row.meaning)};
    }
    return PxNamedProduct::problemOfTheme(PxNamedProduct::themeIdOf(line));
}

/** A product, which need not have a file: that is an answer. */
PxNamedProduct productOf(const QString &name)
{
    PxNamedProduct named = PxNamedProduct::find(name, PxNamedProduct::Among::All);
    if (named.type.isValid() && named.no) {
        named.registry = PxProductTypeConfigRegistry::instance();
        named.no.reset();
    }
    return named;
}

QVector<PxWhyQuestion> questionsOf(const PxCommandLine &line, const PxWhyProduct &product,
                                   const PxWhyProduct *other)
{
    QVector<PxWhyQuestion> questions;
    const PxTheme theme = PxThemeFactory::instance()->findTheme(PxNamedProduct::themeIdOf(line));
    if (line.isSet("pages"))
        questions.append(PxWhyQuestions::pageCount(product, product.shown().pageCount));
    if (line.isSet("key-account"))
        questions.append(
            PxWhyQuestions::keyAccount(product, theme, line.value("key-account").toInt()));
    else if (line.isSet("theme"))
        questions.append(PxWhyQuestions::theme(product, theme));
    if (other)
        questions.append(PxWhyQuestions::compatible(
            product, *other,
            EnumHelper::decodeKeywordList(line.value("criterion"), criterionKeywords,
                                          PxProductComparationNone)));
    if (line.isSet("page"))
        questions.append(PxWhyQuestions::page(product, line.value("page").toInt()));
    if (questions.isEmpty())
        questions.append(PxWhyQuestions::offered(product));
    return questions;
}

} // namespace

PxCommandUsage PxWhyCommand::usage() const
{
    // clang-format off
    return {"why",
        "Whether and why a product is offered, allowed or compatible.\n"
        "Prints the rules in the order in which the library asks them, each with the values that it compares and where they are, and marks the first that decides. Without options: is it offered? "
        "With several, all are asked, and the answer is yes if each of them is. Exit status 1 if the answer is no, 2 if there is no such product or theme, or several products fit.", {
        {"pages", "N", "Is it offered with this many pages?", 1, any},
        {"theme", "ID", "May it be designed in this theme now? With --page: the default templates of this theme.", 0, 0, {}, PxOption::Form::Theme},
        {"key-account", "N", "May this key account order it now, in the theme of --theme?", 0, any},
        {"compatible-with", "OTHER", "Is it interchangeable with this product, which is named like NAME?", 0, 0, {}, PxOption::Form::Product},
        {"criterion", "KEYWORDS", "What else must be the same: binding, paper, space, increment; several with commas. Default: nothing.", 0, 0, keywordList(criterionRows)},
        {"page", "K", "Is there such a page, counted from 0? If so, what it gets, and which entries of the files are not used for it. With as many pages as --pages says, or as it is sold with.", 0, any},
        PxOption::json(),
    }, PxNamedProduct::argument()};
    // clang-format on
}

PxExitStatus PxWhyCommand::run(const PxCommandLine &line) const
{
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxProductPropertiesInitializer::setupModule();
    if (const auto problem = problemOf(line))
        return fail(*problem);
    const PxNamedProduct named = productOf(line.arguments().constFirst());
    if (named.no)
        return fail(*named.no);
    const PxWhyProduct product(named.registry, named.type, PxNamedProduct::themeIdOf(line),
                               line.value("pages").toInt());
    std::optional<PxWhyProduct> other;
    if (line.isSet("compatible-with")) {
        const PxNamedProduct otherNamed = productOf(line.value("compatible-with"));
        if (otherNamed.no)
            return fail(*otherNamed.no);
        other.emplace(otherNamed.registry, otherNamed.type);
    }
    const PxWhyAnswer answer(questionsOf(line, product, other ? &*other : nullptr),
                             product.file().path());
    const bool isWritten =
        line.isSet("json")
            ? PxTerminal::write(answer.json())
            : PxTerminal::write(answer.text(PxTerminal::columns(PxTerminal::unlimited)));
    if (!isWritten)
        return PxExitStatus::CannotRun;
    return answer.isYes() ? PxExitStatus::Done : PxExitStatus::AnswerIsNo;
}
