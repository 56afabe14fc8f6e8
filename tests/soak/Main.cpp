// varnik-soak WHAT (--minutes N | --rounds N) [--seed N] [--scripts DIR] [--keep]

#include "tests/soak/Stage.h"

#include <iostream>
#include <map>

namespace {

using namespace varnik::soak;

const std::map<std::string, long (*)(Soak&)> Soaks = {
    {"kill", Kill}, {"faults", Faults}, {"workstations", Workstations}, {"files", Files}};

int Usage() {
    std::cerr
        << "varnik-soak WHAT (--minutes N | --rounds N) [--seed N] [--scripts DIR] [--keep]\nWHAT is one of:";
    for (const auto& [name, soak] : Soaks) std::cerr << ' ' << name;
    std::cerr << '\n';
    return 2;
}

} // namespace

int main(int count, char** words) {
    if (count < 2 || !Soaks.contains(words[1])) return Usage();
    Options options;
    options.scripts = "tests/scenarios/soak";
    try {
        for (int i = 2; i < count; ++i) {
            const std::string word = words[i];
            if (word == "--keep") {
                options.keep = true;
                continue;
            }
            if (++i == count) return Usage();
            const std::string value = words[i];
            if (word == "--minutes")
                options.until = std::chrono::steady_clock::now() +
                                std::chrono::seconds(std::lround(60 * std::stod(value)));
            else if (word == "--rounds")
                options.rounds = std::stol(value);
            else if (word == "--seed")
                options.seed = static_cast<unsigned>(std::stoul(value));
            else if (word == "--scripts")
                options.scripts = value;
            else
                return Usage();
        }
        options.scripts = std::filesystem::absolute(options.scripts);
        std::cout << words[1] << ", seed " << options.seed << std::endl;
        Soak soak(options);
        Soaks.at(words[1])(soak);
        return soak.Faults() == 0 ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "varnik-soak: " << failure.what() << '\n';
        return 1;
    }
}
