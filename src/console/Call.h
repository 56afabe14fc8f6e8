#pragma once
// One call of a word: its arguments, its results, and where in the script it stands. Lua's own argument
// checks leave by a long jump, past every destructor; these throw.

#include "common/Value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct lua_State;

namespace varnik::console {

class Call {
public:
    explicit Call(lua_State* lua);

    int Count() const { return count_; } // of arguments
    bool Has(int argument) const;        // given and not nil
    bool IsTable(int argument) const;
    // ScriptError when the argument is of another kind. Arguments count from 1.
    std::string Text(int argument) const;
    int Whole(int argument) const;
    double Number(int argument) const;
    bool Truth(int argument) const;
    // A text field of a table argument; nothing when the table lacks it.
    std::optional<std::string> FieldText(int argument, const char* field) const;

    std::string Where() const;             // "file.lua:12: "
    std::string Shown(int argument) const; // as a script would write it
    bool Same(int left, int right) const;  // tables by content
    bool IsText(int argument, std::string_view text) const;

    // Results, in order.
    void Give(std::string_view text);
    void Give(const char* text) { Give(std::string_view(text)); }
    void Give(const std::string& text) { Give(std::string_view(text)); }
    void Give(bool truth);
    void Give(int number);
    void Give(const Value& value); // dates as ISO text, Null as nil
    void GiveNil();
    void Give(const std::vector<std::string>& list);
    void GiveRows(const std::vector<std::vector<Value>>& rows);
    struct Pair {
        const char* name;
        std::string text;
    };
    void GiveTables(const std::vector<std::vector<Pair>>& tables); // a list of tables of texts
    int Results() const { return results_; }
    lua_State* Lua() const { return lua_; }
    void CountResult() { ++results_; } // one that was pushed directly

private:
    void Push(const Value& value);

    lua_State* lua_;
    int count_;
    int results_ = 0;
};

} // namespace varnik::console
