#include "bench/Table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <map>
#include <stdexcept>

namespace varnik::bench {

namespace {

double ProcessorNow() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace

double Seconds(const std::function<void()>& work) {
    const double start = ProcessorNow();
    work();
    return ProcessorNow() - start;
}

double WallSeconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

namespace {

// Keeps the time of every repetition by the benchmark's name; prints a dot for each, the table comes after.
class Keeper : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration)
                seconds[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                              static_cast<double>(run.iterations));
    }
    std::map<std::string, std::vector<double>> seconds;
};

double Median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// How far the middle half of the repetitions lies apart, against the median.
double Noise(std::vector<double> values) {
    std::ranges::sort(values);
    return (values[values.size() * 3 / 4] - values[values.size() / 4]) / Median(values);
}

std::string NameOf(const Measure& measure, bool bare) {
    return measure.name + "|" + measure.size + (bare ? "|bare" : "");
}

} // namespace

void RunAndPrint(const std::vector<Measure>& measures, int repetitions, int count, char** words) {
    std::vector<char*> passed(words, words + count);
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    passed.insert(passed.begin() + 1, interleaved.data());
    count = static_cast<int>(passed.size());
    benchmark::Initialize(&count, passed.data());
    for (const Measure& measure : measures) {
        for (const bool bare : {false, true}) {
            const std::function<double()>& run = bare ? measure.bare : measure.run;
            if (!run) continue;
            const std::string name = NameOf(measure, bare);
            const auto timed = [run, name](benchmark::State& state) {
                try {
                    for (auto _ : state) state.SetIterationTime(run());
                } catch (const std::exception& failure) {
                    throw std::runtime_error(name + ": " + failure.what());
                }
            };
            benchmark::RegisterBenchmark(name.c_str(), timed)
                ->UseManualTime()
                ->Iterations(measure.iterations)
                ->Repetitions(repetitions);
        }
    }
    Keeper keeper;
    benchmark::RunSpecifiedBenchmarks(&keeper);
    std::vector<Sample> samples;
    for (const Measure& measure : measures) {
        Sample sample{measure.name, measure.size, keeper.seconds[NameOf(measure, false)],
                      keeper.seconds[NameOf(measure, true)]};
        if (!sample.program.empty()) samples.push_back(std::move(sample)); // left out by a filter
    }
    Print(samples);
}

void Print(const std::vector<Sample>& samples) {
    std::vector<std::string> names, sizes;
    std::map<std::pair<std::string, std::string>, const Sample*> at;
    const auto add = [](std::vector<std::string>& list, const std::string& one) {
        if (std::ranges::find(list, one) == list.end()) list.push_back(one);
    };
    std::vector<double> noises;
    for (const Sample& sample : samples) {
        add(names, sample.name);
        add(sizes, sample.size);
        at[{sample.name, sample.size}] = &sample;
        noises.push_back(Noise(sample.program));
    }
    std::printf("\n%-58s", "milliseconds, medians (bare loop, ratio to it)");
    for (const std::string& size : sizes) std::printf(" | %10s %22s", size.c_str(), "");
    if (sizes.size() > 1) std::printf(" | growth");
    std::printf("\n");
    for (const std::string& name : names) {
        std::printf("%-58s", name.c_str());
        std::vector<double> medians;
        for (const std::string& size : sizes) {
            const auto found = at.find({name, size});
            if (found == at.end()) {
                std::printf(" | %33s", "");
                continue;
            }
            const double program = Median(found->second->program), bare = Median(found->second->bare);
            medians.push_back(program);
            std::printf(" | %10.3f", program * 1000);
            if (bare > 0)
                std::printf(" (%10.3f, %7.1f)", bare * 1000, program / bare);
            else
                std::printf(" %22s", "");
        }
        if (sizes.size() > 1 && medians.size() > 1) std::printf(" | %6.2f", medians.back() / medians.front());
        std::printf("\n");
    }
    std::ranges::sort(noises);
    if (noises.empty()) return;
    std::printf(
        "noise (middle half of the repetitions against their median): median %.0f %%, worst tenth from "
        "%.0f %%\n",
        noises[noises.size() / 2] * 100, noises[noises.size() * 9 / 10] * 100);
}

} // namespace varnik::bench
