// Prints the cost of start-up and queries, in relation to the least that they could cost.
#include "PxCatalogueGenerator.h"
#include "PxMeasuredCatalogue.h"
#include "PxQueryRatios.h"
#include "PxRatioReporter.h"

#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace {

constexpr int repetitions = 25;

void ignoreLog(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(text));
}

QString generated(const QTemporaryDir &directory, int productCount)
{
    const QString path = directory.filePath(QString::number(productCount));
    PxCatalogueShape shape;
    shape.products = productCount;
    if (!PxCatalogueGenerator(shape).generate(QDir(path)))
        qFatal("The catalogue cannot be written.");
    return path;
}

/**
 * The same products twice, in a registry and in a plain table. Both live until the process ends.
 */
struct PxMeasuredRegistry
{
    explicit PxMeasuredRegistry(const PxMeasuredCatalogue &catalogue)
        : registry(*new PxProductTypeConfigRegistry(catalogue.products()))
        , table(catalogue.read())
    {}

    const PxProductTypeConfigRegistry &registry;
    const QHash<PxProductType, PxProductTypeDescription *> table;
};

/** Repeats the work within one call, so that a call takes long enough to be measured. */
template <typename Work>
std::function<void()> often(int times, Work work)
{
    return [times, work] {
        for (int i = 0; i < times; ++i)
            work();
    };
}

std::vector<PxRatio> startUpRatios(const PxMeasuredCatalogue &large,
                                   const PxMeasuredCatalogue &medium)
{
    const auto tenTimesMedium = [&medium] {
        for (int i = 0; i < 10; ++i)
            medium.readRegistry();
    };
    return {
        {"registry of 1000 files / S", 0.85, 0.65, [&] { medium.readRegistry(); },
         [&] { medium.readWithQt(); }},
        {"registry of 10000 files / ten of 1000", 1.2, 1.0, [&] { large.readRegistry(); },
         tenTimesMedium},
        {"loader alone / S", 0.65, 0.5, [&] { medium.loadFiles(); }, [&] { medium.readWithQt(); }},
        {"theme factory, 100 themes / S of its files", 1.0, 0.7,
         often(10, [&] { medium.loadThemes(); }), often(10, [&] { medium.readThemesWithQt(); })},
    };
}

void addBenchmarks(const std::vector<PxRatio> &ratios)
{
    for (const PxRatio &ratio : ratios) {
        const std::string name = ratio.name;
        for (const auto &[side, work] : {std::make_pair(std::string(), &ratio.measured),
                                         std::make_pair(std::string("|measure"), &ratio.measure)}) {
            const auto run = [work = work](benchmark::State &state) {
                for (auto _ : state)
                    (*work)();
            };
            benchmark::RegisterBenchmark((name + side).c_str(), run)
                ->Repetitions(repetitions)
                ->ReportAggregatesOnly();
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(ignoreLog);
    qputenv("PX_THREADS", "1"); // what threads gain is measured in fresh processes
    benchmark::Initialize(&argc, argv);

    const QTemporaryDir directory;
    const QString mediumPath = generated(directory, 1000);
    const QString smallPath = generated(directory, 100);
    const QString largePath = generated(directory, 10000);
    PxDirectoryConfig::instance()->setResourceDirectories({largePath});
    PxDirectoryConfig::instance()->setUserDefaultsPath(largePath + QLatin1String("/defaults"));
    PxDirectoryConfig::instance()->setThemesDirectory(mediumPath + QLatin1String("/themes"));
    const PxMeasuredCatalogue small(smallPath);
    const PxMeasuredCatalogue medium(mediumPath);
    const PxMeasuredCatalogue large(largePath);

    std::vector<PxRatio> ratios = startUpRatios(large, medium);
    PxProductPropertiesInitializer::setupModule();
    const PxQueryRatios queries;
    for (const PxRatio &ratio : queries.ratios())
        ratios.push_back(ratio);
    const PxMeasuredRegistry registries[] = {PxMeasuredRegistry(small), PxMeasuredRegistry(medium),
                                             PxMeasuredRegistry(large)};
    const char *const names[] = {"compatible products of 100 / bare walk",
                                 "compatible products of 1000 / bare walk",
                                 "compatible products of 10000 / bare walk"};
    for (int i = 0; i < 3; ++i)
        ratios.push_back(
            queries.compatibleProducts(names[i], registries[i].registry, registries[i].table));
    addBenchmarks(ratios);
    PxRatioReporter reporter(ratios);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printTable();
    reporter.printValue("findDefaultTemplate hit", queries.nanosecondsPerDefaultTemplate(), 100,
                        100, "ns");
    reporter.printValue("memory kept per description", medium.bytesPerDescription() / 1024, 5, 2.5,
                        "KB");
    reporter.printValue("allocations per file while loading", medium.allocationsPerFile(), 1200,
                        1000, "");
    return reporter.isEveryMustReached() ? 0 : 1;
}
