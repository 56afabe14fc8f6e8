#include "console/Console.h"

#include "console/Script.h"
#include "console/Stage.h"

#include <exception>
#include <ostream>
#include <system_error>

#include <lua.hpp>

namespace fs = std::filesystem;

namespace varnik::console {

namespace {

// The program works in its own folder, the script in the one it was started from.
class ProgramsFolder {
public:
    ProgramsFolder(fs::path& programs, const fs::path& scripts) : programs_(programs), scripts_(scripts) {
        if (programs_ != scripts_) fs::current_path(programs_, ignored_);
    }
    ~ProgramsFolder() {
        const fs::path now = fs::current_path(ignored_);
        if (!ignored_) programs_ = now;
        if (programs_ != scripts_) fs::current_path(scripts_, ignored_);
    }
    ProgramsFolder(const ProgramsFolder&) = delete;
    ProgramsFolder& operator=(const ProgramsFolder&) = delete;

private:
    fs::path& programs_;
    const fs::path& scripts_;
    std::error_code ignored_;
};

} // namespace

struct Console::Impl {
    Impl(Host host, ConsoleDesktop& desktop, std::ostream& out)
        : stage{std::move(host), desktop, out, fs::current_path()},
          programsFolder(stage.folder),
          lua(luaL_newstate()) {}
    ~Impl() { lua_close(lua); }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    // Pushes a word as a function of Lua; `standard` is what it means with one argument, or nil.
    void PushWord(const Word& word, bool standard);
    void Register(std::span<const Word> words);
    void RegisterPreviews();
    void OpenPreview(const ReportRequest& request);
    // Runs the word; on failure its message stands on Lua's stack, and every object of ours is gone.
    bool RunWord(const Word& word, int& results);
    static int Trampoline(lua_State* lua);
    bool RunScript(const fs::path& script, const std::vector<std::string>& arguments);
    void CheckLeftovers();
    void PrintUnaskedBoxes();

    Stage stage;
    fs::path programsFolder;
    lua_State* lua;
};

Console::Console(Host host, ConsoleDesktop& desktop, std::ostream& out)
    : impl_(std::make_unique<Impl>(std::move(host), desktop, out)) {
    luaL_openlibs(impl_->lua);
    for (const auto& words : {ProgramWords(), ControlWords(), ReadingWords(), ReportWords(), ExpectWords()})
        impl_->Register(words);
    impl_->RegisterPreviews();
    desktop.launch = [this](const ReportRequest& request) { impl_->OpenPreview(request); };
}

// The screens go before the services that they work with.
Console::~Console() {
    impl_->stage.desktop.launch = {};
    impl_->stage.desktop.Quit();
    impl_->stage.desktop.Settle();
}

void Console::Impl::PushWord(const Word& word, bool standard) {
    lua_pushlightuserdata(lua, this);
    lua_pushlightuserdata(lua, const_cast<Word*>(&word));
    if (standard)
        lua_getglobal(lua, word.name); // "type" keeps its standard meaning for one argument
    else
        lua_pushnil(lua);
    lua_pushcclosure(lua, Trampoline, 3);
}

void Console::Impl::Register(std::span<const Word> words) {
    for (const Word& word : words) {
        PushWord(word, true);
        lua_setglobal(lua, word.name);
    }
}

void Console::Impl::RegisterPreviews() {
    luaL_newmetatable(lua, previewMetatable);
    lua_newtable(lua);
    for (const Word& method : PreviewMethods()) {
        PushWord(method, false);
        lua_setfield(lua, -2, method.name);
    }
    lua_setfield(lua, -2, "__index");
    lua_pop(lua, 1);
}

void Console::Impl::OpenPreview(const ReportRequest& request) {
    auto report = reports::OpenReport(request, stage.host.services);
    stage.previews.push_back({++stage.previewCount, std::move(report)});
}

int Console::Impl::Trampoline(lua_State* lua) {
    auto* const self = static_cast<Impl*>(lua_touserdata(lua, lua_upvalueindex(1)));
    const auto* const word = static_cast<const Word*>(lua_touserdata(lua, lua_upvalueindex(2)));
    if (lua_gettop(lua) <= 1 && lua_isfunction(lua, lua_upvalueindex(3))) {
        lua_pushvalue(lua, lua_upvalueindex(3));
        lua_insert(lua, 1);
        lua_call(lua, lua_gettop(lua) - 1, LUA_MULTRET);
        return lua_gettop(lua);
    }
    int results = 0;
    if (self->RunWord(*word, results)) return results;
    return lua_error(lua);
}

bool Console::Impl::RunWord(const Word& word, int& results) {
    Call call(lua);
    std::string failure;
    try {
        const ProgramsFolder there(programsFolder, stage.folder);
        word.run(stage, call);
        stage.desktop.Settle();
        results = call.Results();
        return true;
    } catch (const ScriptError& error) {
        failure = error.text;
    } catch (const std::exception& error) {
        failure = error.what();
    }
    failure = call.Where() + word.name + ": " + failure;
    lua_pushlstring(lua, failure.data(), failure.size());
    return false;
}

bool Console::Impl::RunScript(const fs::path& script, const std::vector<std::string>& arguments) {
    lua_createtable(lua, static_cast<int>(arguments.size()), 1);
    lua_pushstring(lua, script.c_str());
    lua_rawseti(lua, -2, 0);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        lua_pushlstring(lua, arguments[i].data(), arguments[i].size());
        lua_rawseti(lua, -2, static_cast<lua_Integer>(i + 1));
    }
    lua_setglobal(lua, "arg");
    if (luaL_loadfile(lua, script.c_str()) == LUA_OK && lua_pcall(lua, 0, 0, 0) == LUA_OK) return true;
    stage.Fail(luaL_tolstring(lua, -1, nullptr));
    lua_settop(lua, 0);
    return false;
}

void Console::Impl::CheckLeftovers() {
    for (const auto& answer : stage.desktop.answers)
        stage.Fail("an answer was left over: " + (answer.text.empty() ? NameOf(answer.button) : answer.text));
}

// Of a script that broke too: what the program said before is mostly the reason.
void Console::Impl::PrintUnaskedBoxes() {
    for (const Box& box : stage.desktop.boxes)
        stage.out << "a box that nobody asked for: \"" << box.text << "\"\n";
}

int Console::Run(const fs::path& script, const std::vector<std::string>& arguments) {
    Stage& stage = impl_->stage;
    if (impl_->RunScript(script, arguments)) impl_->CheckLeftovers();
    impl_->PrintUnaskedBoxes();
    stage.out << stage.passed << " passed, " << stage.failed << " failed" << std::endl;
    return stage.failed == 0 ? 0 : 1;
}

} // namespace varnik::console
