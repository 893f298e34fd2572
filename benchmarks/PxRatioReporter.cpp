#include "PxRatioReporter.h"

#include <QByteArray>

#include <cstdio>

bool PxRatioReporter::ReportContext(const Context &)
{
    return true;
}

void PxRatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            m_nanoseconds[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
}

void PxRatioReporter::printValue(const char *name, double value, double must, double aim,
                                 const char *unit)
{
    printLine(name, value, must, aim, unit);
}

void PxRatioReporter::printTable()
{
    printf("%-46s %10s %8s %8s\n", "", "measured", "must", "aim");
    for (const PxRatio &ratio : m_ratios) {
        const std::string name = ratio.name;
        const double measure = m_nanoseconds[name + "|measure"];
        if (measure > 0) // not left out by --benchmark_filter
            printLine(ratio.name, m_nanoseconds[name] / measure, ratio.must, ratio.aim, "");
    }
}

void PxRatioReporter::printLine(const char *name, double value, double must, double aim,
                                const char *unit)
{
    const bool isReached = value <= must || must == 0;
    m_isEveryMustReached = m_isEveryMustReached && isReached;
    const QByteArray bound = must > 0 ? QByteArray::number(must, 'f', 2) : QByteArray("-");
    printf("%-46s %10.2f %8s %8.2f %-6s %s\n", name, value, bound.constData(), aim, unit,
           !isReached     ? "MISSED"
           : value <= aim ? "aim"
           : must > 0     ? "must"
                          : "");
}
