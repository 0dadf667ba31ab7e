// Measures each job against its floor and prints a table in Markdown. Ends with status 1 when
// a job is over its limit three times in a row.
//
//   tallix_bench FOLDER CALLS [NAME DBTYPE ADDRESS USER PASSWORD]...
#include <fmt/format.h>

#include <cstdlib>
#include <exception>
#include <iostream>

#include "jobs.h"
#include "measure.h"
#include "world.h"

namespace {

using namespace tallix::bench;

constexpr int kFirstEngine = 3;
constexpr int kWordsOfAnEngine = 5;
constexpr int kAttempts = 3;
constexpr double kBytesPerMegabyte = 1e6;

void PrintHead() {
    std::cout << "| Job | Engine | Seconds | Floor | Ratio | Limit | Peak MB | Text MB |\n"
                 "|---|---|---:|---:|---:|---:|---:|---:|\n";
}

/// Measures the job and its floor once, prints both and returns their ratio.
double RunOnce(const Job& job, World& world, const std::string& engine, std::int64_t text) {
    if (job.prepare) job.prepare(world);
    const Measured measured = Measure([&] { return job.run(world); });
    if (job.prepare) job.prepare(world);
    const Measured floor = Measure([&] {
        job.floor(world, measured.result);
        return std::int64_t{0};
    });
    const double ratio = measured.seconds / floor.seconds;
    std::cout << fmt::format(
                     "| {} | {} | {:.2f} | {:.2f} | {:.2f} | {} | {:.0f} | {} |\n", job.name, engine,
                     measured.seconds, floor.seconds, ratio, job.limit, measured.peakMegabytes,
                     job.isReport ? fmt::format("{:.0f}", static_cast<double>(text) / kBytesPerMegabyte) : "")
              << std::flush;
    return ratio;
}

/// Returns whether the job keeps its limit. Jobs over few calls last tenths of a second, and
/// other work of the machine distorts them: a job over its limit is measured again.
bool Run(const Job& job, World& world, const std::string& engine, std::int64_t text) {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (RunOnce(job, world, engine, text) <= job.limit) return true;
    }
    std::cerr << fmt::format("tallix_bench: over its limit: {} on {}\n", job.name, engine);
    return false;
}

/// TALLIX_BENCH_JOBS, where it is set, is a part of the names of the jobs to run.
bool IsWanted(const Job& job) {
    const char* part = std::getenv("TALLIX_BENCH_JOBS");
    return part == nullptr || job.name.find(part) != std::string::npos;
}

bool RunAll(const EngineAddress& engine, std::uint64_t calls, const std::filesystem::path& folder) {
    Measure([&] {
        const World filled(engine, calls, folder);
        return std::int64_t{0};
    });
    World world(engine, calls, folder);
    const std::int64_t text = TextOfAllCalls(world);
    bool kept = true;
    for (const Job& job : Jobs()) {
        if (IsWanted(job)) kept = Run(job, world, engine.name, text) && kept;
    }
    return kept;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < kFirstEngine + kWordsOfAnEngine) {
        std::cerr << "usage: tallix_bench FOLDER CALLS [NAME DBTYPE ADDRESS USER PASSWORD]...\n";
        return EXIT_FAILURE;
    }
    try {
        const std::uint64_t calls = std::strtoull(arguments[2], nullptr, 10);
        bool kept = true;
        PrintHead();
        for (int i = kFirstEngine; i + kWordsOfAnEngine <= argumentCount; i += kWordsOfAnEngine) {
            char** words = arguments + i;
            kept = RunAll({words[0], words[1], words[2], words[3], words[4]}, calls, arguments[1]) && kept;
        }
        return kept ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::cerr << "tallix_bench: " << failure.what() << std::endl;
        return EXIT_FAILURE;
    }
}
