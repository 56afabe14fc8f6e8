// varnik-console [--folder DIR] script.lua [argument ...]

#include "app/PdfWriter.h"
#include "app/Program.h"
#include "app/ProgramFolder.h"
#include "console/Console.h"
#include "platform/regional/MachineRegional.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr const char* usage = R"(varnik-console [--folder DIR] script.lua [argument ...]

Runs a Lua script against the screens of Varnik, without a display.
DIR is the program's folder (Data and Report stand in it); it is made when missing.
Without it, the folder of the executable. The script finds the arguments in `arg`.
Exit status: 0 when the script ended and nothing failed, 1 otherwise, 2 for a wrong call.
)";

struct Order {
    std::optional<std::filesystem::path> folder{};
    std::filesystem::path script{};
    std::vector<std::string> arguments{};
};

std::optional<Order> ReadOrder(std::vector<std::string> words) {
    Order order;
    if (words.size() >= 2 && words[0] == "--folder") {
        order.folder = words[1];
        words.erase(words.begin(), words.begin() + 2);
    }
    if (words.empty() || words[0].starts_with("--")) return std::nullopt;
    order.script = words[0];
    order.arguments.assign(words.begin() + 1, words.end());
    return order;
}

int RunConsole(const Order& order) {
    using namespace varnik;
    console::ConsoleDesktop desktop(order.folder ? PrepareProgramFolder(*order.folder) : FindProgramFolder());
    Program program(desktop, regional::ReadMachine());
    console::Host host{program.Access(), program.Settings(), [&] { program.Start(); }, PdfWriter()};
    return console::Console(std::move(host), desktop, std::cout).Run(order.script, order.arguments);
}

} // namespace

int main(int count, char** words) {
    try {
        const auto order = ReadOrder({words + 1, words + count});
        if (order) return RunConsole(*order);
        std::cerr << usage;
        return 2;
    } catch (const std::exception& failure) {
        std::cerr << "varnik-console: " << failure.what() << '\n';
        return 1;
    }
}
