// Prints what the first start of a process costs: each round is a process of its own.
#include "PxCatalogueGenerator.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int rounds = 15;

/** As many as the library uses by default. */
int allThreads()
{
    return std::min(QThread::idealThreadCount(), 8);
}

/** What a process is asked to do. */
struct Start
{
    QString what;
    QString catalogue;
    int threads;

    bool operator==(const Start &other) const
    {
        return what == other.what && catalogue == other.catalogue && threads == other.threads;
    }
};

/** What it cost in each round. */
struct Costs
{
    QVector<double> nanoseconds;
    QVector<double> processor; ///< nanoseconds of all threads
    QVector<double> kilobytes; ///< at the largest
};

using Cost = QVector<double> Costs::*;

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double quickest(const QVector<double> &values)
{
    return *std::min_element(values.begin(), values.end());
}

/**
 * Runs each start once a round, in turns and in the order in which they were added, so that other
 * work on the machine troubles all alike.
 */
class PxColdStarts
{
public:
    /** Adds a start, unless it is known already, and returns it. */
    Start add(const QString &what, const QString &catalogue, int threads = 1)
    {
        const Start start{what, catalogue, threads};
        if (!m_starts.contains(start)) {
            m_starts.append(start);
            m_costs.append(Costs());
        }
        return start;
    }

    void run()
    {
        for (int round = 0; round < rounds; ++round) {
            for (int i = 0; i < m_starts.size(); ++i)
                run(m_starts[i], m_costs[i]);
        }
    }

    const Costs &costs(const Start &start) const { return m_costs[m_starts.indexOf(start)]; }

private:
    static void run(const Start &start, Costs &costs)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PX_THREADS"), QString::number(start.threads));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationDirPath() + QLatin1String("/PxStart"),
                      {start.what, start.catalogue});
        process.waitForFinished(-1);
        const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
        if (process.exitCode() != 0 || figures.size() != 3)
            qFatal("%s: %s%s", qPrintable(process.program()), qPrintable(process.errorString()),
                   process.readAllStandardError().constData());
        costs.nanoseconds.append(figures[0].toDouble());
        costs.processor.append(figures[1].toDouble());
        costs.kilobytes.append(figures[2].toDouble());
    }

    QVector<Start> m_starts;
    QVector<Costs> m_costs;
};

bool isEveryMustReached = true;

void print(const QString &name, double ofMedians, double ofQuickest, double must = 0,
           double aim = 0)
{
    const auto bound = [](double value) {
        return value > 0 ? QByteArray::number(value, 'f', 2) : QByteArray("-");
    };
    const char *verdict = "";
    if (must > 0)
        verdict = ofMedians <= aim ? "aim" : ofMedians <= must ? "must" : "MISSED";
    isEveryMustReached = isEveryMustReached && (must == 0 || ofMedians <= must);
    printf("%-46s %10.2f %10.2f %8s %8s %s\n", qPrintable(name), ofMedians, ofQuickest,
           bound(must).constData(), bound(aim).constData(), verdict);
}

void printRatio(const QString &name, Cost cost, const Costs &measured, const Costs &measure,
                double must = 0, double aim = 0, double times = 1)
{
    print(name, median(measured.*cost) / median(measure.*cost) / times,
          quickest(measured.*cost) / quickest(measure.*cost) / times, must, aim);
}

QString generated(const QTemporaryDir &directory, const char *name, const PxCatalogueShape &shape)
{
    const QString path = directory.filePath(QLatin1String(name));
    if (!PxCatalogueGenerator(shape).generate(QDir(path)))
        qFatal("The catalogue cannot be written.");
    return path;
}

void printCatalogue(PxColdStarts &starts, const QString &title, const QString &catalogue)
{
    const int all = allThreads();
    const auto costs = [&](const char *what, int threads = 1) -> const Costs & {
        return starts.costs(starts.add(QLatin1String(what), catalogue, threads));
    };
    printf("\n%-46s %10s %10s %8s %8s\n", qPrintable(title), "medians", "quickest", "must", "aim");
    constexpr Cost time = &Costs::nanoseconds;
    const Costs &s = costs("qt-registry");
    const Costs &one = costs("registry");
    const Costs &two = costs("registry", 2);
    printRatio(QStringLiteral("registry, 1 thread / S"), time, one, s, 0.8, 0.65);
    printRatio(QStringLiteral("registry, 2 threads / S"), time, two, s, 0.52, 0.42);
    // What a second thread does not halve.
    const auto serial = [&](double (*of)(QVector<double>)) {
        return (2 * of(two.nanoseconds) - of(one.nanoseconds)) / of(s.nanoseconds);
    };
    print(QStringLiteral("registry, what more threads can't shorten / S"), serial(median),
          serial([](QVector<double> values) { return quickest(values); }), 0.15, 0.10);
    printRatio(QStringLiteral("registry, CPU with 2 threads / with 1"), &Costs::processor, two, one,
               1.12, 1.05);
    printRatio(QStringLiteral("registry, CPU with 8 threads / with 1"), &Costs::processor,
               costs("registry", 8), one);
    printRatio(QStringLiteral("registry, peak memory with 8 threads / with 1"), &Costs::kilobytes,
               costs("registry", 8), one, 1.3, 1.1);
    const auto threads = [all](const char *what) {
        return QStringLiteral("%1, all %2 threads / S").arg(QLatin1String(what)).arg(all);
    };
    printRatio(threads("registry"), time, costs("registry", all), s);
    printRatio(QStringLiteral("themes, 1 thread / S"), time, costs("themes"), costs("qt-themes"));
    printRatio(threads("themes"), time, costs("themes", all), costs("qt-themes"));
    printRatio(QStringLiteral("both, 1 thread / S"), time, costs("both"), costs("qt-both"));
    printRatio(threads("both"), time, costs("both", all), costs("qt-both"));
}

void addCatalogue(PxColdStarts &starts, const QString &catalogue)
{
    for (const char *what : {"registry", "themes", "both"}) {
        starts.add(QLatin1String("qt-") + QLatin1String(what), catalogue);
        for (const int threads : {1, 2, 8, allThreads()})
            starts.add(QLatin1String(what), catalogue, threads);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    PxCatalogueShape shape;
    const QString plain = generated(directory, "plain", shape);
    shape.products = 10000;
    const QString large = generated(directory, "large", shape);
    const QString rich = generated(directory, "rich", PxCatalogueShape::rich());

    PxColdStarts starts;
    addCatalogue(starts, plain);
    addCatalogue(starts, rich);
    const QString registry = QStringLiteral("registry");
    const Start tenThousand = starts.add(registry, large, 2);
    starts.run();
    printCatalogue(starts, QStringLiteral("1000 products"), plain);
    printCatalogue(starts, QStringLiteral("1000 larger ones, 1500 types, themes apart"), rich);
    printf("\n");
    printRatio(QStringLiteral("registry of 10000 / ten of 1000, 2 threads"), &Costs::nanoseconds,
               starts.costs(tenThousand), starts.costs(starts.add(registry, plain, 2)), 1.15, 1.0,
               10);
    return isEveryMustReached ? 0 : 1;
}
