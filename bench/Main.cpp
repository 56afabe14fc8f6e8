// What the design promises, measured in made-up shops of several sizes, each beside the bare loop of the same
// work in the same run. Prints medians of several interleaved runs in one table.
//
//     varnik-bench [--sizes=1000,100000,1000000] [--pdf=100000] [--repetitions=5] [--desktop-runs=5]
//                  [--benchmark_filter=...]
//
// PDF files are written in the shops of that size alone; a filter leaves the desktop's part out.

#include "bench/DesktopRun.h"
#include "bench/KeptShop.h"
#include "bench/Measures.h"
#include "bench/Recorder.h"
#include "common/Regional.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>

namespace varnik::bench {
namespace {

struct Options {
    std::vector<long> sizes{1'000, 100'000, 1'000'000};
    long pdf = 100'000;
    int repetitions = 5, desktopRuns = 5;
    bool filtered = false;
    std::vector<char*> passed;
};

Options Read(int count, char** words) {
    Options options;
    for (int i = 0; i < count; ++i) {
        const std::string word = words[i];
        const auto value = [&](std::string_view name) {
            return word.starts_with(name) ? word.substr(name.size()) : std::string();
        };
        if (const std::string sizes = value("--sizes="); !sizes.empty()) {
            options.sizes.clear();
            std::stringstream list(sizes);
            for (std::string one; std::getline(list, one, ',');) options.sizes.push_back(std::stol(one));
        } else if (const std::string pdf = value("--pdf="); !pdf.empty()) {
            options.pdf = std::stol(pdf);
        } else if (const std::string times = value("--repetitions="); !times.empty()) {
            options.repetitions = std::stoi(times);
        } else if (const std::string runs = value("--desktop-runs="); !runs.empty()) {
            options.desktopRuns = std::stoi(runs);
        } else {
            options.filtered = options.filtered || word.starts_with("--benchmark_filter");
            options.passed.push_back(words[i]);
        }
    }
    return options;
}

// What a process of its own prints: the value at the end of each line by what stands before it.
void Gather(const std::string& command, std::map<std::string, std::vector<double>>& values) {
    std::FILE* output = popen(command.c_str(), "r");
    if (!output) throw std::runtime_error("cannot run " + command);
    char line[200];
    while (std::fgets(line, sizeof line, output)) {
        const std::string text(line);
        const auto blank = text.rfind(' ');
        values[text.substr(0, blank)].push_back(std::stod(text.substr(blank)));
    }
    if (pclose(output) != 0) throw std::runtime_error("failed: " + command);
}

void MeasureDesktop(const std::string& self, const Options& options, const std::string& size,
                    const std::filesystem::path& folder, std::vector<Sample>& samples) {
    std::map<std::string, std::vector<double>> program, bare;
    for (int run = 0; run < options.desktopRuns; ++run) {
        Gather(self + " --desktop " + std::to_string(MonotonicNow()) + " " + folder.string(), program);
        Gather(self + " --at-rest " + folder.string(), program);
        Gather(self + " --empty-window " + std::to_string(MonotonicNow()), bare);
    }
    for (auto& [name, values] : program) {
        if (name == "memory" || name == "own")
            for (std::vector<double>* all : {&values, &bare[name]})
                for (double& megabytes : *all) megabytes /= 1000; // the table shows thousandths
        samples.push_back({name == "memory"  ? "desktop: memory at rest with five screens (MB)"
                           : name == "own"   ? "desktop: of it the program's own (MB)"
                           : name == "start" ? "desktop: start to login, beside an empty window"
                                             : "desktop: " + name,
                           size, values, bare[name]});
    }
}

int Run(int count, char** words) {
    Options options = Read(count, words);
    const std::string self = std::filesystem::absolute(words[0]).string(); // a start changes the folder
    ListenToConnections();
    std::vector<std::unique_ptr<ShopCopy>> shops;
    std::vector<std::unique_ptr<Floor>> floors;
    std::vector<Measure> measures;
    std::vector<Sample> desktop;
    for (const long sales : options.sizes) {
        shops.push_back(std::make_unique<ShopCopy>(sales));
        const std::string size = FormatNumber(static_cast<double>(sales), "#,##0", {});
        if (!options.filtered && options.desktopRuns > 0)
            MeasureDesktop(self, options, size, shops.back()->Folder(), desktop);
        floors.push_back(std::make_unique<Floor>(shops.back()->Folder()));
        AddScreenMeasures(measures, *floors.back(), size);
        if (sales <= options.pdf) AddReportMeasures(measures, *floors.back(), size, sales == options.pdf);
    }
    RunAndPrint(measures, options.repetitions, static_cast<int>(options.passed.size()),
                options.passed.data());
    Print(desktop);
    return 0;
}

} // namespace
} // namespace varnik::bench

int main(int count, char** words) {
    using namespace varnik::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    try {
        const std::string first = count > 1 ? words[1] : "";
        if (first == "--desktop" && count == 4) return RunDesktop(words[3], std::stod(words[2]));
        if (first == "--at-rest" && count == 3) return RunAtRest(words[2]);
        if (first == "--empty-window" && count == 3) return RunEmptyWindow(std::stod(words[2]));
        const QGuiApplication application(count, words); // for the letters of reports
        return Run(count, words);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "varnik-bench: %s\n", failure.what());
        return 1;
    }
}
