#pragma once
// What is measured, and the one table in which it is printed: the program beside the bare loop of the same
// work, in shops of different sizes.

#include <functional>
#include <string>
#include <vector>

namespace varnik::bench {

// Seconds of the processor that the work took: others who share the machine do not count in it, and neither
// does waiting for the disk.
double Seconds(const std::function<void()>& work);
double WallSeconds(const std::function<void()>& work);

struct Measure {
    std::string name;               // "post a sale of 10 lines"
    std::string size;               // of the shop: "1,000"
    std::function<double()> run;    // seconds of one run of the program
    std::function<double()> bare{}; // of the bare loop; none where there is no such thing
    int iterations = 5;             // in one repetition
};

// Runs them all, repetitions interleaved by chance, and prints the table. The arguments are Google
// Benchmark's.
void RunAndPrint(const std::vector<Measure>& measures, int repetitions, int count, char** words);

// The same table for what is measured in processes of its own: the seconds of each run.
struct Sample {
    std::string name, size;
    std::vector<double> program, bare;
};
void Print(const std::vector<Sample>& samples);

} // namespace varnik::bench
