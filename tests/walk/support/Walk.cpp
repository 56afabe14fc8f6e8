#include "tests/walk/support/Walk.h"

#include "app/ProgramFolder.h"
#include "console/Console.h"
#include "console/Script.h"
#include "data/Bootstrap.h"
#include "data/DataSource.h"
#include "data/Schema.h"
#include "tests/walk/support/Hands.h"
#include "tests/walk/support/StatementWatch.h"

#include <iostream>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace varnik::walk {

namespace {

constexpr std::size_t TrailLength = 25;
constexpr const char* mainWindow = "frmMainCode";

// Not there yet: a killed process of the same number may have left its own.
fs::path Folder(const std::string& name) {
    fs::path folder = fs::temp_directory_path() / ("varnik-walk-" + std::to_string(getpid()) + "-" + name);
    fs::remove_all(folder);
    return folder;
}

// The shop that all walks of this process begin in, built once.
class Pattern {
public:
    Pattern() : folder_(PrepareProgramFolder(Folder("pattern"))) {
        StatementWatch::Install();
        console::ConsoleDesktop desktop(folder_);
        Program program(desktop, Regional{});
        std::ostringstream out;
        console::Host host{program.Access(), program.Settings(), [&] { program.Start(); }};
        const int status = console::Console(std::move(host), desktop, out)
                               .Run(fs::path(VARNIK_SOURCE) / "tests/scenarios/support/walk.lua", {});
        if (status != 0) throw std::runtime_error("the shop to walk in cannot be built: " + out.str());
        ado::ReleaseDatabase(data::DatabaseFile(folder_));
    }
    ~Pattern() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;
    void CopyTo(const fs::path& folder) const {
        fs::remove_all(folder);
        fs::create_directories(folder / "Data");
        fs::copy(folder_ / "Report", folder / "Report");
        fs::copy(folder_ / "Data" / "Varnik.mdb", folder / "Data" / "Varnik.mdb");
    }

private:
    fs::path folder_;
};

std::string Shown(const std::string& text) {
    std::string shown;
    for (const char character : text.substr(0, 60)) {
        const auto code = static_cast<unsigned char>(character);
        if (code >= 32 && code != 127)
            shown += character;
        else
            shown += "\\" + std::to_string(code);
    }
    return text.size() > 60 ? shown + "... (" + std::to_string(text.size()) + " bytes)" : shown;
}

} // namespace

Tally& Tally::operator+=(const Tally& other) {
    actions += other.actions;
    characters += other.characters;
    questions += other.questions;
    reports += other.reports;
    starts += other.starts;
    writes += other.writes;
    return *this;
}

Walk::Walk(std::uint64_t seed, Rights rights) : seed_(seed), rights_(rights), chance_(seed), texts_(chance_) {
    static const Pattern pattern;
    static int count = 0;
    folder_ = Folder(std::to_string(++count));
    pattern.CopyTo(folder_);
    desktop_ = std::make_unique<WalkDesktop>(folder_, chance_, texts_);
    desktop_->clock = *MakeDate(2026, 11, 22, 34200);
    desktop_->onFinding = [this](const std::string& what) { Found(what); };
    program_ = std::make_unique<Program>(*desktop_, Regional{});
    desktop_->services = &program_->Access();
    Start();
    std::vector<std::string> codes;
    atFirst_ = Books();
    for (const auto& [table, rows] : atFirst_)
        for (const std::string& row : rows) {
            const std::string first = row.substr(0, row.find('|'));
            if (!first.empty() && first.size() <= 12) codes.push_back(first);
        }
    texts_.Know(std::move(codes));
    schema_ = Schema();
    written.clear();
}

Walk::~Walk() {
    desktop_->Quit();
    desktop_->Settle();
    program_.reset();
    ado::ReleaseDatabase(data::DatabaseFile(folder_));
    std::error_code ignored;
    fs::current_path(folder_.parent_path(), ignored); // start-up went into the folder
    fs::remove_all(folder_, ignored);
}

void Walk::Found(const std::string& what) {
    std::string story =
        what + "\n  seed " + std::to_string(seed_) + ", action " + std::to_string(tally.actions);
    for (const std::string& step : trail_) story += "\n    " + step;
    findings.push_back(std::move(story));
}

// ---- Starting and opening ----

void Walk::Start() {
    ++tally.starts;
    desktop_->SetRunning();
    Act("starts the program", [&] { program_->Start(); });
    forms::Screen* const login = desktop_->FindScreen("fLogin");
    if (!login) {
        if (!locked_) Found("the program does not start");
        locked_ = true;
        return;
    }
    Act("logs in", [&] {
        auto& hands = desktop_->Keys();
        const auto type = [&](const char* name, const char* text) {
            auto* const field = dynamic_cast<forms::TextControl*>(login->FindControl(name));
            login->MoveFocus(*field);
            hands.SelectAll(*field);
            for (const forms::Key& key : console::PlainKeys(text)) hands.Press(*login, key);
        };
        type("txtUserId", "varnik");
        type("txtPassword", "kemiri");
        login->Click(*login->FindControl("cmdOK"));
    });
    locked_ = !desktop_->FindScreen(mainWindow); // a walk may change or delete its own user
    Session& session = program_->Access().session;
    session.RightTambah = rights_.add;
    session.RightGanti = rights_.change;
    session.RightHapus = rights_.remove;
}

std::vector<std::string> Walk::Keys() const {
    std::vector<std::string> keys{""};
    for (const auto& [key, entry] : program_->Access().screens) keys.push_back(key);
    return keys;
}

forms::Screen* Walk::Open(const std::string& key) {
    if (!desktop_->Running() && !locked_) Start();
    if (locked_) return nullptr;
    if (key.empty()) return desktop_->FindScreen(mainWindow);
    Act("opens " + key, [&] { OpenScreen(program_->Access(), key, key); });
    return desktop_->FindScreen(program_->Access().screens.at(key).name);
}

// ---- Walking ----

// What escapes is a finding: screens meet the failures of their statements themselves.
void Walk::Act(const std::string& what, const std::function<void()>& action) {
    ++tally.actions;
    trail_.push_back(what);
    if (trail_.size() > TrailLength) trail_.pop_front();
    desktop_->BeginAction();
    StatementWatch::BeginAction();
    try {
        action();
        desktop_->Settle();
    } catch (const console::ScriptError&) {
        desktop_->Settle(); // a field that takes no typing, a window that waits: a person would go on
    } catch (const AsksWithoutEnd&) {
        Found("it asks without end");
    } catch (const std::exception& failure) {
        Found(std::string("a failure escapes: ") + failure.what());
    }
    if (StatementWatch::RanAway()) Found("its statements come to no end");
    desktop_->boxes.clear();
    desktop_->prompts.clear();
    tally.writes += static_cast<long>(StatementWatch::Written().size());
    written.insert(written.end(), StatementWatch::Written().begin(), StatementWatch::Written().end());
    StatementWatch::ForgetWritten();
}

void Walk::On(const std::string& key, int actions) {
    const std::string name = key.empty() ? mainWindow : program_->Access().screens.at(key).name;
    for (int i = 0; i < actions && !locked_; ++i) {
        if (!desktop_->Running() || !desktop_->FindScreen(name)) Open(key);
        if (forms::Screen* const top = desktop_->Top()) StepOn(*top);
    }
}

void Walk::Everywhere(int actions) {
    const std::vector<std::string> keys = Keys();
    for (int i = 0; i < actions && !locked_; ++i) {
        if (!desktop_->Running() || !desktop_->Top() || chance_.Percent(2)) Open(chance_.Of(keys));
        if (chance_.Percent(3)) ChooseAnywhere();
        if (forms::Screen* const top = desktop_->Top()) StepOn(*top);
    }
}

void Walk::ChooseAnywhere() {
    const std::vector<forms::Screen*> open = desktop_->Screens();
    if (open.empty()) return;
    forms::Screen& screen = *chance_.Of(open);
    Act("goes to " + screen.Name(), [&] { desktop_->ComeForward(screen); });
}

void Walk::StepOn(forms::Screen& screen) {
    if (chance_.Percent(1)) {
        Act("closes " + screen.Name(), [&] { screen.Close(); });
        return;
    }
    if (chance_.Percent(12)) {
        const forms::Key key = AnyKeyOf(chance_);
        Act(screen.Name() + ": " + NameOf(key), [&] { desktop_->Keys().Press(screen, key); });
        return;
    }
    if (chance_.Percent(4)) return WorkOn(screen);
    std::vector<forms::Control*> within;
    for (forms::Control* control : screen.Controls())
        if (control->IsUsable()) within.push_back(control);
    if (!within.empty()) HandOn(screen, *chance_.Of(within));
}

// As a person at work: begins, goes through the fields, adds lines, and saves in the end or gives up.
void Walk::WorkOn(forms::Screen& screen) {
    const auto press = [&](const std::vector<const char*>& names) {
        for (const char* name : names)
            if (forms::Control* const button =
                    desktop_->Top() == &screen ? screen.FindControl(name) : nullptr;
                button && button->IsUsable())
                return Press(screen, *button);
    };
    static const std::vector<std::vector<const char*>> beginnings = {
        {"bttnNew", "bttnAdd"}, {"bttnNew", "bttnAdd"}, {"bttnEdit", "bttnNew"}, {"bttnDel", "bttnDelete"}};
    press(chance_.Of(beginnings));
    const std::string name = screen.Name();
    for (int lines = chance_.Below(3); lines >= 0; --lines) {
        const std::vector<forms::Control*> fields = screen.Controls();
        for (forms::Control* control : fields) {
            if (desktop_->Top() != &screen || screen.Closed()) return;
            auto* const field = dynamic_cast<forms::TextControl*>(control);
            if (!field || field->Locked() || !field->CanFocus() || chance_.Percent(30)) continue;
            if (auto* const combo = dynamic_cast<forms::ComboBox*>(field); combo && !combo->Items().empty())
                Act(name + "." + field->Name() + ": picks", [&] {
                    screen.MoveFocus(*combo);
                    combo->Pick(chance_.Below(static_cast<int>(combo->Items().size())));
                });
            else
                TypeInto(screen, *field, texts_.Fitting(field->Name()));
        }
        press({"bttnAddLine"});
    }
    if (chance_.Percent(75))
        press({"bttnSave", "bttnOK"});
    else
        press({"bttnCancel"});
}

void Walk::HandOn(forms::Screen& screen, forms::Control& control) {
    const std::string where = screen.Name() + "." + control.Name() + ": ";
    if (auto* field = dynamic_cast<forms::TextControl*>(&control)) {
        if (auto* combo = dynamic_cast<forms::ComboBox*>(field); combo && chance_.Percent(60)) {
            const int item = chance_.Below(static_cast<int>(combo->Items().size()) + 1);
            Act(where + "picks " + std::to_string(item), [&] {
                screen.MoveFocus(*combo);
                combo->Pick(item);
            });
            return;
        }
        TypeInto(screen, *field, texts_.For(field->Name()));
    } else if (auto* date = dynamic_cast<forms::DatePicker*>(&control)) {
        const DateTime day{
            chance_.Percent(70) ? 20779 + chance_.Below(40) - 20 : chance_.Below(3'600'000) - 700'000, 0};
        Act(where + ToIso(day), [&] {
            screen.MoveFocus(*date);
            date->Pick(day);
        });
    } else if (auto* tree = dynamic_cast<forms::Tree*>(&control)) {
        const std::string key = tree->Nodes().empty() ? "" : chance_.Of(tree->Nodes()).key;
        Act(where + "opens " + key, [&] { tree->NodeClick(key); });
    } else if (auto* timer = dynamic_cast<forms::Timer*>(&control)) {
        Act(where + "ticks", [&] { timer->Tick(); });
    } else if (control.GetKind() == forms::Kind::Grid || control.GetKind() == forms::Kind::ListGrid) {
        const TableHand hand = AnyTableHandOf(chance_, control);
        Act(where + hand.name, [&] { hand.act(); });
    } else {
        Press(screen, control);
    }
}

void Walk::Press(forms::Screen& screen, forms::Control& control) {
    Act(screen.Name() + "." + control.Name() + ": pressed", [&] {
        const auto mouse = [&](const std::function<void()>& handler) {
            if (handler && !screen.Closed()) screen.Act(handler);
        };
        mouse(control.onMouseDown);
        screen.Click(control);
        if (forms::Menu* const menu = desktop_->TakePoppedUp()) {
            forms::MenuItem& item = *chance_.Of(menu->Items());
            trail_.push_back("  " + item.Name());
            item.Owner().Click(item);
        } else {
            mouse(control.onMouseUp);
        }
    });
}

void Walk::TypeInto(forms::Screen& screen, forms::TextControl& field, const std::string& text, Then then) {
    static const std::vector<Then> possible = {Then::Enter, Then::Enter, Then::Tab, Then::Nothing};
    if (then == Then::Anything) then = chance_.Of(possible);
    const std::string leaving = then == Then::Enter ? " Enter" : then == Then::Tab ? " Tab" : "";
    Act(screen.Name() + "." + field.Name() + ": types \"" + Shown(text) + "\"" + leaving, [&] {
        tally.characters += static_cast<long>(text.size());
        screen.MoveFocus(field);
        if (field.Locked() || screen.Focused() != &field) return;
        console::Keyboard& keyboard = desktop_->Keys();
        keyboard.SelectAll(field);
        if (text.size() > 100) { // pasted
            field.Type(text);
        } else {
            if (text.empty()) keyboard.Press(screen, {.code = forms::KeyCode::Delete});
            for (const forms::Key& key : console::PlainKeys(text)) {
                if (screen.Closed()) return;
                keyboard.Press(screen, key);
            }
        }
        if (then == Then::Enter && !screen.Closed()) keyboard.Press(screen, {.code = forms::KeyCode::Enter});
        if (then == Then::Tab && !screen.Closed()) keyboard.Press(screen, {.code = forms::KeyCode::Tab});
    });
}

// ---- What has to hold afterwards ----

Walk::AllTables Walk::Books() {
    AllTables books;
    ado::Connection connection(program_->Access().data,
                               "Data Source = " + data::DatabaseFile(folder_).string());
    for (const jet::Table& table : data::Tables()) {
        std::vector<std::string>& rows = books[std::string(table.name)];
        const std::string all = "Select * From [" + std::string(table.name) + "]";
        for (ado::Recordset set(all, connection, ado::CursorType::Static); !set.Eof(); set.MoveNext()) {
            std::string row;
            for (int column = 0; column < set.FieldCount(); ++column)
                row += (column == 0 ? "" : "|") + ShowValue(set[column].Value(), program_->Access().regional);
            rows.push_back(std::move(row));
        }
    }
    return books;
}

std::string Walk::Schema() {
    std::string all;
    ado::Connection connection(program_->Access().data,
                               "Data Source = " + data::DatabaseFile(folder_).string());
    for (ado::Recordset set("Select name, sql From sqlite_master Order By name", connection,
                            ado::CursorType::Static);
         !set.Eof(); set.MoveNext())
        all += ShowValue(set[0].Value(), Regional{}) + ": " + ShowValue(set[1].Value(), Regional{}) + "\n";
    return all;
}

void Walk::End() {
    desktop_->Quit();
    desktop_->Settle();
    tally.questions = desktop_->asked;
    tally.reports = desktop_->launched;
    trail_.clear();
    const fs::path file = data::DatabaseFile(folder_);
    try {
        ado::ReleaseDatabase(file);
        const std::string unsound = ado::CheckDatabase(file);
        if (!unsound.empty()) Found("the file is not sound: " + unsound);
        if (Schema() != schema_) Found("the schema is another: " + Schema());
        const std::string fault = data::CheckShopDatabase(program_->Access().data, file);
        if (!fault.empty()) Found(fault);
        locked_ = false;
        Start();
    } catch (const std::exception& failure) {
        Found(std::string("the file cannot be read: ") + failure.what());
    }
}

} // namespace varnik::walk
