// What the design promises, measured: posting a sale beside the bare loop of the same row writes, opening
// the sales screen, the next number; each in a small shop and in a large one, in the same run. Prints
// medians of several interleaved runs, then one table of ratios.
//
//     varnik-bench [--large=N] [--benchmark_...]     N sales in the large shop, 1,000,000 without it

#include "bench/BenchShop.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <tuple>

namespace varnik::bench {
namespace {

template <typename Work>
double Seconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The console's usual table, and the medians kept by name.
class KeepingMedians : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    std::map<std::string, double> medians; // milliseconds
};

void Register(const std::string& name, BenchShop& shop, int iterations,
              const std::function<double(BenchShop&)>& timed) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&shop, timed](benchmark::State& state) {
                                     for (auto _ : state) state.SetIterationTime(timed(shop));
                                 })
        ->UseManualTime()
        ->Iterations(iterations)
        ->Repetitions(7)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

void RegisterShop(const std::string& size, BenchShop& shop) {
    for (const int lines : {1, 10}) {
        const std::string label = std::to_string(lines) + (lines == 1 ? " line, " : " lines, ") + size;
        Register("post " + label, shop, 20, [lines](BenchShop& on) {
            on.EnterSale(lines);
            return Seconds([&] { on.Save(); });
        });
        Register("bare " + label, shop, 20, [lines](BenchShop& on) {
            return Seconds([&] {
                on.Bare().PostSale(lines);
                on.Bare().Sync();
            });
        });
        Register("bare unsynced " + label, shop, 20,
                 [lines](BenchShop& on) { return Seconds([&] { on.Bare().PostSale(lines); }); });
    }
    Register("open Invoice, " + size, shop, 20,
             [](BenchShop& on) { return Seconds([&] { on.OpenAndClose("T01"); }); });
    Register("list to its first page, " + size, shop, 1,
             [](BenchShop& on) { return Seconds([&] { on.FirstPageOfSales(100'000); }); });
    Register("next number, " + size, shop, 50,
             [](BenchShop& on) { return Seconds([&] { benchmark::DoNotOptimize(on.NextNumber()); }); });
}

// The lists and records of the master screens; each on a screen that stays open.
void RegisterMasters(const std::string& size, BenchShop& shop) {
    for (const auto& [key, screen, code] :
         {std::tuple{"F01", "fProduk", "0000000500"}, std::tuple{"F02", "fCustomer", "C000000500"}}) {
        const std::string label = std::string(screen) + ", " + size;
        Register("open " + label, shop, 5,
                 [key](BenchShop& on) { return Seconds([&] { on.OpenAndClose(key); }); });
        Register("search all, " + label, shop, 2,
                 [key, screen](BenchShop& on) { return Seconds([&] { on.Search(key, screen); }); });
        Register("save " + label, shop, 5, [key, screen, code](BenchShop& on) {
            on.Edit(key, screen, code);
            return Seconds([&] { on.SaveRecord(screen); });
        });
    }
    Register("look-up of customers, " + size, shop, 2, [](BenchShop& on) {
        on.PrepareLookUp();
        return Seconds([&] { on.LookUpCustomers(); });
    });
}

void Ratio(const std::map<std::string, double>& medians, const std::string& over, const std::string& under,
           const std::string& goal) {
    const auto a = medians.find(over), b = medians.find(under);
    if (a == medians.end() || b == medians.end()) return; // left out by a filter
    std::printf("%-28s %9.3f ms   against %-28s %9.3f ms   ratio %5.2f   goal %s\n", over.c_str(), a->second,
                under.c_str(), b->second, a->second / b->second, goal.c_str());
}

} // namespace
} // namespace varnik::bench

int main(int argc, char** argv) {
    using namespace varnik::bench;
    long large = 1000000;
    std::vector<char*> passed;
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    for (int i = 0; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.starts_with("--large="))
            large = std::stol(argument.substr(8));
        else
            passed.push_back(argv[i]);
    }
    passed.insert(passed.begin() + 1, interleaved.data());
    int count = static_cast<int>(passed.size());
    benchmark::Initialize(&count, passed.data());

    BenchShop smallShop(1000);
    std::printf("filling a shop of %ld sales ...\n", large);
    std::fflush(stdout);
    BenchShop largeShop(large);
    RegisterShop("small", smallShop);
    RegisterShop("large", largeShop);
    BenchShop fewShop(1000);
    BenchShop manyShop(1000, 100'000);
    RegisterMasters("few", fewShop);
    RegisterMasters("many", manyShop);
    KeepingMedians reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n");
    for (const std::string size : {"small", "large"}) {
        Ratio(reporter.medians, "post 1 line, " + size, "bare 1 line, " + size, "-");
        Ratio(reporter.medians, "post 10 lines, " + size, "bare 10 lines, " + size, "at most 2");
        Ratio(reporter.medians, "post 10 lines, " + size, "bare unsynced 10 lines, " + size, "-");
    }
    Ratio(reporter.medians, "post 10 lines, large", "post 10 lines, small", "at most 1.3");
    Ratio(reporter.medians, "open Invoice, large", "open Invoice, small", "flat, under 20 ms");
    Ratio(reporter.medians, "list to its first page, large", "list to its first page, small",
          "under 1000 ms at 100,000 rows");
    Ratio(reporter.medians, "next number, large", "next number, small", "flat, under 20 ms");
    for (const std::string screen : {"fProduk", "fCustomer"}) {
        Ratio(reporter.medians, "open " + screen + ", many", "open " + screen + ", few", "flat, under 20 ms");
        Ratio(reporter.medians, "search all, " + screen + ", many", "search all, " + screen + ", few",
              "under 100 ms at 100,000 rows");
        Ratio(reporter.medians, "save " + screen + ", many", "save " + screen + ", few", "flat");
    }
    Ratio(reporter.medians, "look-up of customers, many", "look-up of customers, few",
          "under 100 ms at 100,000 rows");
    return 0;
}
