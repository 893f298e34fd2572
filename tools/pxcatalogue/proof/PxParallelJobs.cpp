#include "proof/PxParallelJobs.h"

#include "writing/PxProgress.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <future>
#include <system_error>

namespace {

constexpr int maximumThreads = 8; // with more, what one thread does takes the most time

int threadCount()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("PX_THREADS", &isNumber);
    return std::min(isNumber && wanted > 0 ? wanted : QThread::idealThreadCount(), maximumThreads);
}

} // namespace

std::optional<PxProblem> PxParallelJobs::run(const std::vector<Job> &jobs, PxProgress *progress)
{
    std::vector<std::optional<PxProblem>> problems(jobs.size());
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t job = next++; job < jobs.size(); job = next++) {
            problems[job] = jobs[job]();
            if (progress)
                progress->advance();
            if (problems[job])
                next = jobs.size();
        }
    };
    std::vector<std::future<void>> threads;
    try {
        for (int i = 1; i < threadCount(); ++i)
            threads.push_back(std::async(std::launch::async, work));
    } catch (const std::system_error &) { // the system refuses a thread: the others do its work
    }
    work();
    for (std::future<void> &thread : threads)
        thread.get();
    const auto first = std::find_if(problems.begin(), problems.end(),
                                    [](const auto &problem) { return problem.has_value(); });
    return first == problems.end() ? std::nullopt : *first;
}
