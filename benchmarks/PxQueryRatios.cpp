#include "PxQueryRatios.h"

#include <context/PxProductContext.h>

#include <benchmark/benchmark.h>

#include <QElapsedTimer>

namespace {

constexpr int calls = 10000;

/** Calls `ask(i)` many times and keeps the compiler from removing the calls. */
template <typename Ask>
std::function<void()> repeat(Ask ask)
{
    return [ask] {
        for (int i = 0; i < calls; ++i)
            benchmark::DoNotOptimize(ask(i));
    };
}

void require(bool isRight, const char *what)
{
    if (!isRight)
        qFatal("Wrong answer: %s.", what);
}

PxDefaultTemplateKey templateKey()
{
    return PxDefaultTemplateKey(QStringLiteral("theme-1"),
                                PxPageContext(PxPageTypeNormalPage, PxPageAlignmentLeft),
                                DefaultTemplateTypeBackground);
}

} // namespace

PxQueryRatios::PxQueryRatios()
    : m_book(QStringLiteral("PRODUCT_00000"))
    , m_description(PxProductTypeConfigRegistry::instance()->description(m_book))
{
    require(m_description->isValid() && m_description->minPages() == 26 &&
                m_description->maxPages() > 26 && m_description->pageIncrement() > 0,
            "the book");
    require(!m_description->findDefaultTemplate(templateKey(), true, false).isEmpty(),
            "a default template");
    require(m_description->pageTypes(98).size() == 103, "the pages");
}

std::vector<PxRatio> PxQueryRatios::ratios() const
{
    const auto *d = m_description;
    const auto *registry = PxProductTypeConfigRegistry::instance();
    const PxProductContext context(m_book);
    QHash<PxProductType, const PxProductTypeDescription *> table;
    for (int code = 1; code <= 1000; ++code)
        table.insert(PxProductType(code), d);
    const PxDefaultTemplateKey key = templateKey();
    const QHash<PxDefaultTemplateKey, QString> templates{{key, QStringLiteral("Leinen beige")}};
    const QString text =
        QString::fromLatin1("Leinen beige"); // has a reference count, unlike a literal
    const PxPageType normalPage(PxPageTypeNormalPage);
    const auto appendPages = [normalPage](int) {
        PxPageTypeList pages;
        pages.reserve(98);
        for (int page = 0; page < 98; ++page)
            pages.append(normalPage);
        return pages.size();
    };
    require(d->spineWidth(26) > 0 && context.spineWidth(26) == d->spineWidth(26), "the spine");
    require(registry->horizontalPages(m_book) && table.value(m_book) == d, "the registry");
    return {
        {"context's query / description's own", 1.2, 1.0,
         repeat([context](int i) { return context.spineWidth(i % 80); }),
         repeat([d](int i) { return d->spineWidth(i % 80); })},
        {"registry's forwarder / one QHash::value", 1.3, 1.1,
         repeat([registry, book = m_book](int) { return registry->horizontalPages(book); }),
         repeat([table, book = m_book](int) { return table.value(book); })},
        {"copy of a context / copy of a QString", 1.3, 1.0,
         repeat([context](int) { return PxProductContext(context); }),
         repeat([text](int) { return QString(text); })},
        {"minPages, maxPages, pageIncrement / getters", 1.5, 1.0,
         repeat([d](int) { return d->minPages() ^ d->maxPages() ^ d->pageIncrement(); }),
         repeat([d](int) {
             return d->hasCover() ^ d->isSimplex() ^ d->supportsJigType(PxJigTypeClipart);
         })},
        {"findDefaultTemplate / hit in a QHash", 0, 2.0,
         repeat([d, key](int) { return d->findDefaultTemplate(key, true, false); }),
         repeat([templates, key](int) { return templates.value(key); })},
        {"pageTypes(98) / appending 98", 1.3, 1.0,
         repeat([d](int) { return d->pageTypes(98).size(); }), repeat(appendPages)},
    };
}

PxRatio PxQueryRatios::compatibleProducts(
    const char *name, const PxProductTypeConfigRegistry &registry,
    const QHash<PxProductType, PxProductTypeDescription *> &table) const
{
    const auto find = [&registry, book = m_book] {
        return registry.findCompatibleProducts(book, PxProductComparationSpaceMagnitude |
                                                         PxProductComparationPageIncrement);
    };
    const PxProductTypeList found = find();
    require(found.contains(m_book) && found.size() < table.size() / 3, "the compatible products");
    const auto walk = [&table] {
        int count = 0;
        for (auto it = table.begin(); it != table.end(); ++it)
            count += it.value()->hasSpine() ? 1 : 0;
        benchmark::DoNotOptimize(count);
    };
    const int times = qMax(1, 10000 / table.size());
    return {name, 1.6, 1.2,
            [=] {
                for (int i = 0; i < times; ++i)
                    benchmark::DoNotOptimize(find());
            },
            [=] {
                for (int i = 0; i < times; ++i)
                    walk();
            }};
}

double PxQueryRatios::nanosecondsPerDefaultTemplate() const
{
    const PxDefaultTemplateKey key = templateKey();
    constexpr int times = 1000000;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < times; ++i)
        benchmark::DoNotOptimize(m_description->findDefaultTemplate(key, true, false));
    return double(timer.nsecsElapsed()) / times;
}
