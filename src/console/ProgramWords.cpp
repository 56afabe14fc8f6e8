// Clock, start-up, screens, boxes, data.

#include "console/Script.h"
#include "console/Stage.h"

#include "common/Text.h"
#include "platform/ado/Ado.h"
#include "platform/forms/Controls.h"

#include <algorithm>
#include <map>
#include <ostream>

namespace varnik::console {

namespace {

// The names of the program's own screens that the words lead through.
constexpr const char* loginScreen = "fLogin";
constexpr const char* mainScreen = "frmMainCode";
constexpr const char* menuTree = "TV";

DateTime DateOf(const std::string& text) {
    if (const auto date = FromIso(text)) return *date;
    throw ScriptError{"\"" + text + "\" is no date of the form 2026-11-22 or 2026-11-22 09:30:00"};
}

void Now(Stage& stage, Call& call) { stage.desktop.clock = DateOf(call.Text(1)); }

// The day alone; the time stays, and is nine in the morning when none was set.
void Today(Stage& stage, Call& call) {
    const int second = stage.desktop.clock ? stage.desktop.clock->second : 9 * 3600;
    stage.desktop.clock = DateTime{DateOf(call.Text(1)).day, second};
}

// "dd/mm/yyyy": order, separator and the digits of the year.
void ReadDateForm(const std::string& form, Regional& regional) {
    static const std::map<std::string, DateOrder> orders = {{"mdy", DateOrder::MonthDayYear},
                                                            {"dmy", DateOrder::DayMonthYear},
                                                            {"ymd", DateOrder::YearMonthDay},
                                                            {"ydm", DateOrder::YearDayMonth}};
    std::string letters; // each once, in the order of its piece
    for (const char c : form)
        if (std::string_view("dmy").find(c) != std::string_view::npos && !letters.ends_with(c)) letters += c;
    const auto order = orders.find(letters);
    const auto separator = form.find_first_not_of("dmy");
    const auto years = std::ranges::count(form, 'y');
    if (order == orders.end() || separator == std::string::npos || (years != 2 && years != 4))
        throw ScriptError{"\"" + form + "\" is no date of the machine, as dd/mm/yyyy is"};
    regional.order = order->second;
    regional.dateSeparator = form.substr(separator, form.find_first_of("dmy", separator) - separator);
    regional.fourDigitYear = years == 4;
}

void SetRegional(Stage& stage, Call& call) {
    if (stage.desktop.Running()) throw ScriptError{"the machine's settings are set before start()"};
    if (!call.IsTable(1)) throw ScriptError{"write it as regional{date=..., decimal=..., group=...}"};
    const auto sign = [&](const char* field, char& target) {
        const auto text = call.FieldText(1, field);
        if (!text) return;
        if (text->size() != 1) throw ScriptError{std::string(field) + " is one character"};
        target = text->front();
    };
    if (const auto form = call.FieldText(1, "date")) ReadDateForm(*form, stage.host.regional);
    sign("decimal", stage.host.regional.decimal);
    sign("group", stage.host.regional.group);
}

void Start(Stage& stage, Call&) {
    if (stage.desktop.Running()) throw ScriptError{"the program runs already"};
    stage.desktop.SetRunning();
    stage.host.start();
}

void TypeInto(Stage& stage, const std::string& field, const std::string& text) {
    forms::Control& control = stage.Reach(field);
    stage.desktop.Keys().SelectAll(dynamic_cast<forms::TextControl&>(control));
    if (text.empty()) stage.desktop.Keys().Press(control.Owner(), {.code = forms::KeyCode::Delete});
    for (const forms::Key& key : PlainKeys(text)) stage.desktop.Keys().Press(control.Owner(), key);
}

void Login(Stage& stage, Call& call) {
    if (stage.Current().Name() != loginScreen) throw ScriptError{"the login screen is not there"};
    TypeInto(stage, "txtUserId", call.Text(1));
    TypeInto(stage, "txtPassword", call.Text(2));
    forms::Control& ok = stage.Use("cmdOK");
    ok.Owner().Click(ok);
}

void Stop(Stage& stage, Call&) {
    forms::Screen& screen = stage.ScreenNamed(mainScreen);
    stage.desktop.ComeForward(screen);
    screen.Close();
}

void Running(Stage& stage, Call& call) { call.Give(stage.desktop.Running()); }

void AnotherInstance(Stage& stage, Call& call) { stage.desktop.anotherInstance = call.Truth(1); }

// A click on a row of the menu tree.
void Open(Stage& stage, Call& call) {
    const std::string key = call.Text(1);
    auto* tree = dynamic_cast<forms::Tree*>(stage.ScreenNamed(mainScreen).FindControl(menuTree));
    if (!tree || !tree->Find(key)) throw ScriptError{"the menu has no row " + key};
    stage.Use(std::string(mainScreen) + "." + menuTree);
    tree->Owner().MoveFocus(*tree);
    tree->NodeClick(key);
}

// The items of the menus that the labels of the main window drop down.
std::vector<forms::MenuItem*> DropDown(Stage& stage, forms::Control& label) {
    label.Owner().Click(label);
    const forms::Menu* const menu = stage.desktop.TakePoppedUp();
    return menu ? menu->Items() : std::vector<forms::MenuItem*>{};
}

void Menu(Stage& stage, Call& call) {
    const std::string name = call.Text(1);
    for (const char* label : {"lblFile", "lblTool", "lblHelp"})
        for (forms::MenuItem* item : DropDown(stage, stage.Use(std::string(mainScreen) + "." + label))) {
            if (!EqualsNoCase(item->Name(), name)) continue;
            if (!item->IsUsable()) throw ScriptError{name + " is disabled"};
            item->Owner().Click(*item);
            return;
        }
    throw ScriptError{"no menu drops down an item " + name};
}

void Use(Stage& stage, Call& call) { stage.desktop.ComeForward(stage.ScreenNamed(call.Text(1))); }

void Current(Stage& stage, Call& call) {
    if (const forms::Screen* top = stage.desktop.Top())
        call.Give(top->Name());
    else
        call.GiveNil();
}

void Screens(Stage& stage, Call& call) {
    std::vector<std::string> names;
    for (const forms::Screen* screen : stage.desktop.Screens()) names.push_back(screen->Name());
    call.Give(names);
}

// ---- Boxes ----

ConsoleDesktop::QueuedAnswer ReadAnswer(const Stage& stage, const Call& call, int argument) {
    using Kind = ConsoleDesktop::QueuedAnswer::Kind;
    if (call.IsTable(argument)) {
        if (const auto text = call.FieldText(argument, "input")) return {Kind::Text, {}, *text};
        if (const auto path = call.FieldText(argument, "file"))
            return {Kind::File, {}, stage.PathOf(*path).string()};
        throw ScriptError{"an answer is a button, {input=text} or {file=path}"};
    }
    const std::string word = call.Text(argument);
    if (const auto button = AnswerNamed(word)) return {Kind::Button, *button, ""};
    throw ScriptError{"there is no answer \"" + word + "\""};
}

void QueueAnswers(Stage& stage, Call& call) {
    for (int i = 1; i <= call.Count(); ++i) stage.desktop.answers.push_back(ReadAnswer(stage, call, i));
}

void Message(Stage& stage, Call& call) {
    if (stage.desktop.boxes.empty()) {
        call.GiveNil();
        return;
    }
    call.Give(stage.desktop.boxes.front().text);
    stage.desktop.boxes.pop_front();
}

void Messages(Stage& stage, Call& call) {
    std::vector<std::vector<Call::Pair>> tables;
    for (const Box& box : stage.desktop.boxes)
        tables.push_back({{"text", box.text},
                          {"title", box.title},
                          {"icon", NameOf(box.icon)},
                          {"buttons", NameOf(box.buttons)}});
    stage.desktop.boxes.clear();
    call.GiveTables(tables);
}

void Prompts(Stage& stage, Call& call) { call.Give(stage.desktop.prompts); }

void Shell(Stage& stage, Call& call) { call.Give(stage.desktop.shell); }

// ---- Data ----

void Sql(Stage& stage, Call& call) {
    const std::string& source = stage.host.services.session.ConnectionString;
    if (source.empty()) throw ScriptError{"the data is there after start()"};
    ado::Connection connection(stage.host.services.data, source);
    const std::string statement = call.Text(1);
    const std::size_t first = std::min(statement.find_first_not_of(" \t\r\n"), statement.size());
    if (!EqualsNoCase(statement.substr(first, 6), "select")) {
        call.Give(static_cast<int>(connection.Execute(statement)));
        return;
    }
    std::vector<std::vector<Value>> rows;
    for (ado::Recordset set(statement, connection, ado::CursorType::Static); !set.Eof(); set.MoveNext()) {
        std::vector<Value>& row = rows.emplace_back();
        for (int column = 0; column < set.FieldCount(); ++column) row.push_back(set[column].Value());
    }
    call.GiveRows(rows);
}

constexpr Word words[] = {{"now", Now},
                          {"today", Today},
                          {"regional", SetRegional},
                          {"start", Start},
                          {"login", Login},
                          {"stop", Stop},
                          {"running", Running},
                          {"another", AnotherInstance},
                          {"open", Open},
                          {"menu", Menu},
                          {"use", Use},
                          {"current", Current},
                          {"screens", Screens},
                          {"answer", QueueAnswers},
                          {"message", Message},
                          {"messages", Messages},
                          {"prompts", Prompts},
                          {"shell", Shell},
                          {"sql", Sql}};

} // namespace

std::span<const Word> ProgramWords() { return words; }

} // namespace varnik::console
