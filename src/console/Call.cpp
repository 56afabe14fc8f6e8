#include "console/Call.h"

#include "console/Script.h"

#include <cmath>

#include <lua.hpp>

namespace varnik::console {

namespace {

[[noreturn]] void WrongKind(lua_State* lua, int argument, const char* wanted) {
    throw ScriptError{"argument " + std::to_string(argument) + " should be " + wanted + ", not " +
                      luaL_typename(lua, argument)};
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        if (c == '\r')
            quoted += "\\r";
        else if (c == '\n')
            quoted += "\\n";
        else if (c == '\t')
            quoted += "\\t";
        else
            quoted += c;
    }
    return quoted + '"';
}

std::string_view View(lua_State* lua, int at) {
    std::size_t length = 0;
    const char* text = lua_tolstring(lua, at, &length);
    return {text, length};
}

std::string ShownAt(lua_State* lua, int at);

std::string ShownTable(lua_State* lua, int at) {
    std::string shown = "{";
    const lua_Integer length = static_cast<lua_Integer>(lua_rawlen(lua, at));
    for (lua_Integer i = 1; i <= length; ++i) {
        lua_rawgeti(lua, at, i);
        shown += (shown.size() > 1 ? ", " : "") + ShownAt(lua, lua_gettop(lua));
        lua_pop(lua, 1);
    }
    lua_pushnil(lua);
    while (lua_next(lua, at) != 0) {
        const int key = lua_gettop(lua) - 1;
        const bool listed =
            lua_isinteger(lua, key) != 0 && lua_tointeger(lua, key) >= 1 && lua_tointeger(lua, key) <= length;
        if (!listed) {
            const bool plain = lua_type(lua, key) == LUA_TSTRING;
            shown += shown.size() > 1 ? ", " : "";
            shown += plain ? std::string(View(lua, key)) : "[" + ShownAt(lua, key) + "]";
            shown += "=" + ShownAt(lua, key + 1);
        }
        lua_pop(lua, 1);
    }
    return shown + "}";
}

std::string ShownAt(lua_State* lua, int at) {
    luaL_checkstack(lua, 8, "a value nested too deep");
    switch (lua_type(lua, at)) {
    case LUA_TNONE:
    case LUA_TNIL:
        return "nil";
    case LUA_TBOOLEAN:
        return lua_toboolean(lua, at) != 0 ? "true" : "false";
    case LUA_TSTRING:
        return Quoted(View(lua, at));
    case LUA_TTABLE:
        return ShownTable(lua, at);
    default: {
        std::string shown(luaL_tolstring(lua, at, nullptr));
        lua_pop(lua, 1);
        return shown;
    }
    }
}

bool SameAt(lua_State* lua, int left, int right);

// Whether every entry of one table stands in the other too.
bool Covers(lua_State* lua, int table, int other) {
    bool same = true;
    lua_pushnil(lua);
    while (lua_next(lua, table) != 0) {
        const int value = lua_gettop(lua);
        lua_pushvalue(lua, value - 1);
        lua_rawget(lua, other);
        same = same && SameAt(lua, value, lua_gettop(lua));
        lua_settop(lua, value - 1);
    }
    return same;
}

bool SameAt(lua_State* lua, int left, int right) {
    luaL_checkstack(lua, 8, "a value nested too deep");
    if (lua_istable(lua, left) && lua_istable(lua, right))
        return Covers(lua, left, right) && Covers(lua, right, left);
    return lua_rawequal(lua, left, right) != 0;
}

} // namespace

Call::Call(lua_State* lua) : lua_(lua), count_(lua_gettop(lua)) {}

bool Call::Has(int argument) const { return argument <= count_ && !lua_isnil(lua_, argument); }

bool Call::IsTable(int argument) const { return argument <= count_ && lua_istable(lua_, argument); }

std::string Call::Text(int argument) const {
    if (argument > count_ || lua_isstring(lua_, argument) == 0) WrongKind(lua_, argument, "a text");
    lua_pushvalue(lua_, argument); // turned into text, the number that the script holds would stay one
    std::string text(View(lua_, -1));
    lua_pop(lua_, 1);
    return text;
}

int Call::Whole(int argument) const {
    if (argument > count_ || lua_isinteger(lua_, argument) == 0) WrongKind(lua_, argument, "a whole number");
    return static_cast<int>(lua_tointeger(lua_, argument));
}

double Call::Number(int argument) const {
    if (argument > count_ || lua_type(lua_, argument) != LUA_TNUMBER) WrongKind(lua_, argument, "a number");
    return lua_tonumber(lua_, argument);
}

bool Call::Truth(int argument) const {
    if (argument > count_ || !lua_isboolean(lua_, argument)) WrongKind(lua_, argument, "true or false");
    return lua_toboolean(lua_, argument) != 0;
}

std::optional<std::string> Call::FieldText(int argument, const char* field) const {
    lua_getfield(lua_, argument, field);
    std::optional<std::string> text;
    if (lua_isstring(lua_, -1) != 0) text = std::string(View(lua_, -1));
    lua_pop(lua_, 1);
    return text;
}

std::string Call::Where() const {
    luaL_where(lua_, 1);
    std::string where(View(lua_, -1));
    lua_pop(lua_, 1);
    return where;
}

std::string Call::Shown(int argument) const { return ShownAt(lua_, argument); }

bool Call::Same(int left, int right) const { return SameAt(lua_, left, right); }

bool Call::IsText(int argument, std::string_view text) const {
    return argument <= count_ && lua_type(lua_, argument) == LUA_TSTRING && View(lua_, argument) == text;
}

void Call::Give(std::string_view text) {
    lua_pushlstring(lua_, text.data(), text.size());
    ++results_;
}

void Call::Give(bool truth) {
    lua_pushboolean(lua_, truth ? 1 : 0);
    ++results_;
}

void Call::Give(int number) {
    lua_pushinteger(lua_, number);
    ++results_;
}

void Call::GiveNil() {
    lua_pushnil(lua_);
    ++results_;
}

void Call::Give(const Value& value) {
    Push(value);
    ++results_;
}

void Call::Push(const Value& value) {
    constexpr double exact = 9007199254740992.0; // whole numbers up to here print without a fraction
    if (value.IsNull()) {
        lua_pushnil(lua_);
    } else if (value.IsBool()) {
        lua_pushboolean(lua_, value.Bool() ? 1 : 0);
    } else if (value.IsInteger()) {
        lua_pushinteger(lua_, value.Integer());
    } else if (value.IsDouble()) {
        const double number = value.Double();
        if (std::floor(number) == number && std::abs(number) < exact)
            lua_pushinteger(lua_, static_cast<lua_Integer>(number));
        else
            lua_pushnumber(lua_, number);
    } else {
        const std::string text = value.IsText() ? value.Text() : ToIso(value.Date());
        lua_pushlstring(lua_, text.data(), text.size());
    }
}

void Call::Give(const std::vector<std::string>& list) {
    lua_createtable(lua_, static_cast<int>(list.size()), 0);
    for (std::size_t i = 0; i < list.size(); ++i) {
        lua_pushlstring(lua_, list[i].data(), list[i].size());
        lua_rawseti(lua_, -2, static_cast<lua_Integer>(i + 1));
    }
    ++results_;
}

void Call::GiveRows(const std::vector<std::vector<Value>>& rows) {
    lua_createtable(lua_, static_cast<int>(rows.size()), 0);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        lua_createtable(lua_, static_cast<int>(rows[i].size()), 0);
        for (std::size_t k = 0; k < rows[i].size(); ++k) {
            Push(rows[i][k]);
            lua_rawseti(lua_, -2, static_cast<lua_Integer>(k + 1));
        }
        lua_rawseti(lua_, -2, static_cast<lua_Integer>(i + 1));
    }
    ++results_;
}

void Call::GiveTables(const std::vector<std::vector<Pair>>& tables) {
    lua_createtable(lua_, static_cast<int>(tables.size()), 0);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        lua_createtable(lua_, 0, static_cast<int>(tables[i].size()));
        for (const Pair& pair : tables[i]) {
            lua_pushlstring(lua_, pair.text.data(), pair.text.size());
            lua_setfield(lua_, -2, pair.name);
        }
        lua_rawseti(lua_, -2, static_cast<lua_Integer>(i + 1));
    }
    ++results_;
}

} // namespace varnik::console
