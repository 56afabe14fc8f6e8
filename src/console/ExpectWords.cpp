#include "console/Stage.h"

#include <ostream>

namespace varnik::console {

namespace {

void Expect(Stage& stage, Call& call) {
    if (call.Same(1, 2))
        stage.Pass();
    else
        stage.Fail(call.Where() + "is " + call.Shown(1) + ", expected " + call.Shown(2));
}

void ExpectMessage(Stage& stage, Call& call) {
    const std::string expected = call.Text(1);
    if (stage.desktop.boxes.empty()) {
        stage.Fail(call.Where() + "no box, expected \"" + expected + "\"");
        return;
    }
    const std::string shown = stage.desktop.boxes.front().text;
    stage.desktop.boxes.pop_front();
    if (shown == expected)
        stage.Pass();
    else
        stage.Fail(call.Where() + "the box says \"" + shown + "\", expected \"" + expected + "\"");
}

void Scenario(Stage& stage, Call& call) { stage.out << "-- " << call.Text(1) << std::endl; }

constexpr Word words[] = {{"expect", Expect}, {"expect_message", ExpectMessage}, {"scenario", Scenario}};

} // namespace

std::span<const Word> ExpectWords() { return words; }

} // namespace varnik::console
