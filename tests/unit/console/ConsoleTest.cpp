// Scripts against one sample screen: what each word does, and every way in which a script fails.

#include "console/Console.h"
#include "platform/desktop/ProgramScreen.h"
#include "platform/registry/Registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace varnik::console {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

class Second : public ProgramScreen {
public:
    explicit Second(Services& services) : ProgramScreen(services, "Second", "Second") {
        bttnClose.onClick = [this] { Close(); };
    }
    forms::Button bttnClose{*this, "bttnClose"};
};

class Sample : public ProgramScreen {
public:
    explicit Sample(Services& services) : ProgramScreen(services, "Sample", "Sample - Varnik") {
        Panel.Hold({&Inside});
        Panel.SetEnabled(false);
        Locked.SetLocked(true);
        Hidden.SetVisible(false);
        Off.SetEnabled(false);
        Combo.SetItems({"CASH", "CHEQUE", "BG"});
        Kind.SetItems({"a", "b"});
        Kind.SetListOnly(true);
        Lines.SetColumns({{"CODE"}, {"QTY"}});
        Lines.SetRows(3);
        Found.SetColumns({{"CODE"}, {"NAME"}});
        Found.SetItems({"1\tOne", "2\tTwo"});
        Code.onKeyPress = [](forms::KeyPress& press) { press.ToUpper(); };
        Amount.onChange = [this] { Amount.SetText(Masked(Number(Amount))); };
        Stubborn.onLeave = [this] { SetFocus(Stubborn); };
        Ask.onClick = [this] { Code.SetText(Desk().MessageBox(question) == Answer::Yes ? "YES" : "NO"); };
        Input.onClick = [this] { Code.SetText(Desk().InputBox("Enter User Name", "").value_or("none")); };
        Fail.onClick = [] { throw ado::DataError(11, "Division by zero"); };
        Modal.onClick = [this] {
            Desk().ShowModal(std::make_unique<Second>(services_), [this] { Code.SetText("CLOSED"); });
        };
        Other.onClick = [this] { Desk().Show(std::make_unique<Second>(services_)); };
        Say3.onClick = [this] { Say("first"), Say("second", Icon::Critical, "Title"); };
        Found.onActivate = [this] { Code.SetText(Found.Cell(Found.Row(), 1)); };
        Lines.onKeyDown = [this](forms::Key& key) {
            if (key.Is(forms::KeyCode::Delete)) Code.SetText("DEL");
        };
        Clock.onTick = [this] { Ticks.SetCaption(std::to_string(++ticks_)); };
    }

    void Activate() override { SetCaption("front " + std::to_string(++fronts_)); }

    const Box question{.text = "Sure ?", .buttons = Buttons::YesNo};
    forms::TextBox Code{*this, "Code", "&Code"}, Amount{*this, "Amount"}, Locked{*this, "Locked"};
    forms::TextBox Hidden{*this, "Hidden"};
    forms::Frame Panel{*this, "Panel"};
    forms::TextBox Inside{*this, "Inside"};
    forms::ComboBox Combo{*this, "Combo"}, Kind{*this, "Kind"};
    forms::CheckBox Check{*this, "Check1"};
    forms::OptionButton One{*this, "Option(0)"}, Two{*this, "Option(1)"};
    forms::DatePicker Date{*this, "Date"};
    forms::Grid Lines{*this, "Lines"};
    forms::ListGrid Found{*this, "Found"};
    forms::Button Off{*this, "Off"}, Ask{*this, "Ask"}, Input{*this, "Input"}, Fail{*this, "Fail"};
    forms::Button Modal{*this, "Modal"}, Other{*this, "Other"}, Say3{*this, "Say"};
    forms::TextBox Stubborn{*this, "Stubborn"};
    forms::Label Ticks{*this, "Ticks", "0"};
    forms::Timer Clock{*this, "Clock", 100};

private:
    int ticks_ = 0, fronts_ = 0;
};

struct Outcome {
    int status;
    std::string output;
};

// Runs a script whose start() shows the sample screen.
Outcome RunScript(const std::string& script) {
    const auto folder = std::filesystem::path(testing::TempDir()) /
                        ("console-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
                         testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "script.lua") << script;
    Session session;
    Regional settings;
    ado::Environment data;
    registry::Registry registry(folder / "registry");
    ConsoleDesktop desktop(folder);
    Services services{session, desktop, data, settings, registry};
    std::ostringstream out;
    int status = 0;
    {
        Host host{services, settings, [&] { desktop.Show(std::make_unique<Sample>(services)); }};
        status = Console(std::move(host), desktop, out).Run(folder / "script.lua", {"first", "second"});
    }
    std::filesystem::remove_all(folder);
    return {status, out.str()};
}

void ExpectAllPass(const std::string& script) {
    const Outcome outcome = RunScript(script);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr(" passed, 0 failed\n"));
    EXPECT_FALSE(outcome.output.starts_with("0 passed")) << "nothing was checked";
}

TEST(Words, Typing) {
    ExpectAllPass(R"lua(
        start()
        expect(focused(), "Code")
        enter("Code", "c001")
        expect(text "Code", "C001")
        expect(focused(), "Amount")
        enter("Code", "x")                      -- over the whole text
        expect(text "Code", "X")
        type("Code", "yz{Left}{Backspace}w{Home}{Del}{End}!")
        expect(text "Code", "WZ!")
        type("Code", "{Shift+Home}q{Ctrl+a}{Del}ä{{}")
        expect(text "Code", "Ä{")
        type("Code", "{Tab}1234567{Enter}")     -- the change masks the text, the caret stays behind it
        expect(text "Amount", "1,234,567")
        clear "Amount"
        expect(text "Amount", "0")
        type("Combo", "{Down}{Down}")
        expect(text "Combo", "CHEQUE")
        type("Lines", "{Down}{Del}")
        expect(currentrow "Lines", 1)
        expect(text "Code", "DEL")
        type("Amount", "{Alt+c}")
        expect(focused(), "Code")
    )lua");
}

TEST(Words, Picking) {
    ExpectAllPass(R"lua(
        regional{date="dd.mm.yyyy"}
        start()
        choose("Combo", "CH")
        expect(text "Combo", "CHEQUE")
        choose("Kind", "b")
        expect(items "Kind", {"a", "b"})
        check("Check1", true) check("Check1", true)
        expect(checked "Check1", true)
        click "Option(1)"
        check("Option(0)", true)
        expect({checked "Option(0)", checked "Option(1)"}, {true, false})
        date("Date", "2026-11-22")
        expect(text "Date", "22.11.2026")
        row("Lines", 2)
        expect({rows "Lines", currentrow "Lines", cell("Lines", 0, 1)}, {2, 2, "QTY"})
        doubleclick("Found", 2)
        expect(text "Code", "Two")
        expect({rows "Found", currentrow "Found", cell("Found", 1, 1)}, {2, 2, "One"})
        tick(3)
        expect(caption "Ticks", "3")
        expect({enabled "Inside", visible "Inside", locked "Locked", visible "Hidden"}, {false, true, true, false})
    )lua");
}

TEST(Words, BoxesAndScreens) {
    ExpectAllPass(R"lua(
        today "2026-11-22"
        start()
        answer("no", {input="varnik"}, "cancel")
        click "Ask"
        expect(text "Code", "NO")
        click "Input"
        expect(text "Code", "varnik")
        click "Input"
        expect(text "Code", "none")
        expect(prompts(), {"Enter User Name", "Enter User Name"})
        expect_message "Sure ?"
        click "Fail"
        expect(messages()[1], {text="Division by zero", title="Varnik", icon="critical", buttons="ok"})
        click "Say"
        expect({message(), message(), message()}, {"first", "second"})
        click "Modal"
        expect(screens(), {"Sample", "Second"})
        expect(caption "Sample.Ticks", "0")
        click "bttnClose"
        expect({text "Code", caption()}, {"CLOSED", "front 2"})
        click "Other"
        enter("Sample.Code", "back")
        expect(current(), "Sample")
        use "Second"
        expect(current(), "Second")
        expect(arg[2], "second")
        expect(type(1), "number")
    )lua");
}

// Every way in which a script fails: status 1, a line that says where and why, the count at the end.
TEST(Failures, OfAScript) {
    const struct {
        const char* script;
        const char* says;
    } cases[] = {
        {"start() expect(1, 2)", ":1: is 1, expected 2"},
        {"start() expect({1, {a=\"x\"}}, {1, {a=\"y\"}})", "is {1, {a=\"x\"}}, expected {1, {a=\"y\"}}"},
        {"expect(1, \"1\")", "is 1, expected \"1\""},
        {"start()\nexpect_message \"x\"", ":2: no box, expected \"x\""},
        {"start() click \"Say\" expect_message \"x\"", "the box says \"first\", expected \"x\""},
        {"click \"Ask\"", "click: the program does not run"},
        {"start() start()", "start: the program runs already"},
        {"start() regional{date=\"dd/mm/yyyy\"}", "before start()"},
        {"start()\n\nclick \"Off\"", ":3: click: Off is disabled"},
        {"start() click \"Nothing\"", "there is no Nothing on Sample"},
        {"start() click \"Invoice.bttnNew\"", "the screen Invoice is not open"},
        {"start() click \"Code\"", "Code is nothing to click"},
        {"start() enter(\"Hidden\", \"x\")", "Hidden is hidden"},
        {"start() enter(\"Inside\", \"x\")", "Inside is disabled"},
        {"start() enter(\"Locked\", \"x\")", "Locked is locked"},
        {"start() type(\"Locked\", \"x\")", "Locked is locked"},
        {"start() type(\"Kind\", \"x\")", "choose from its list"},
        {"start() type(\"Code\", \"{Entr}\")", "there is no key {Entr}"},
        {"start() choose(\"Combo\", \"x\")", "Combo has no item \"x\""},
        {"start() row(\"Lines\", 3)", "Lines has no row 3, its last is 2"},
        {"start() row(\"Found\", 0)", "Found has no row 0"},
        {"start() cell(\"Lines\", 1, 2)", "columns 0 to 1"},
        {"start() focus \"Stubborn\" enter(\"Code\", \"x\")",
         "the focus does not go to Code, it is on Stubborn"},
        {"start() click \"Ask\"", "no answer is queued: \"Sure ?\""},
        {"start() answer \"retry\" click \"Ask\"", "the box has no button \"retry\""},
        {"start() answer{file=\"x\"} click \"Input\"", "does not fit this question: \"Enter User Name\""},
        {"start() answer \"yes\"", "an answer was left over: yes"},
        {"answer \"maybe\"", "there is no answer \"maybe\""},
        {"start() click \"Modal\" click \"Sample.Code\"", "Sample waits until Second is closed"},
        {"click(nil)", "argument 1 should be a text, not nil"},
        {"this is no Lua", "script.lua:1: syntax error"},
        {"error(\"own words\")", "script.lua:1: own words"},
        {"report():text()", "attempt to index a nil value"},
    };
    for (const auto& [script, says] : cases) {
        const Outcome outcome = RunScript(script);
        EXPECT_EQ(outcome.status, 1) << script;
        EXPECT_THAT(outcome.output, HasSubstr(says)) << script;
        EXPECT_THAT(outcome.output, EndsWith(" passed, 1 failed\n")) << script;
    }
}

TEST(Failures, AScriptMayMeetItself) {
    ExpectAllPass(R"lua(
        start()
        local went, why = pcall(click, "Ask")
        expect(went, false)
        expect(why:match("no answer is queued") ~= nil, true)
        expect_message "Sure ?"
        click "Say"                              -- the screen goes on
        expect(message(), "first")
    )lua");
}

TEST(Failures, UnaskedBoxesArePrintedAndFailNothing) {
    const Outcome outcome = RunScript("start() click \"Say\" message()");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "a box that nobody asked for: \"second\"\n0 passed, 0 failed\n");
    const Outcome broken = RunScript("start() click \"Say\" message() login(\"a\", \"b\")");
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.output, HasSubstr("the login screen is not there"));
    EXPECT_THAT(broken.output, EndsWith("nobody asked for: \"second\"\n0 passed, 1 failed\n"));
}

TEST(Script, WorksInTheFolderItWasStartedFrom) {
    const auto before = std::filesystem::current_path();
    RunScript("start() click \"Say\"");
    EXPECT_EQ(std::filesystem::current_path(), before);
}

} // namespace
} // namespace varnik::console
