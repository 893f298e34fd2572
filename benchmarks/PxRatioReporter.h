#pragma once

#include "PxRatio.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/** Collects the times of both sides of each ratio and prints a table of the ratios. */
class PxRatioReporter : public benchmark::BenchmarkReporter
{
public:
    explicit PxRatioReporter(const std::vector<PxRatio> &ratios) : m_ratios(ratios) {}

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    /** Prints a line for a value other than a ratio, with its bounds. */
    void printValue(const char *name, double value, double must, double aim, const char *unit);
    void printTable();
    bool isEveryMustReached() const { return m_isEveryMustReached; }

private:
    void printLine(const char *name, double value, double must, double aim, const char *unit);

    const std::vector<PxRatio> &m_ratios;
    std::map<std::string, double> m_nanoseconds; // medians by name of the benchmark
    bool m_isEveryMustReached = true;
};
