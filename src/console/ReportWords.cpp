// Open previews. A preview is a table with what it was asked for, and the functions text, pdf, csv, xlsx
// and close; `reports` lists the open ones, `report` gives the newest.

#include "console/Script.h"
#include "console/Stage.h"

#include "reports/engine/Report.h"

#include <algorithm>

#include <lua.hpp>

namespace varnik::console {

namespace {

constexpr const char* number = "number"; // the field by which a preview's table is known again

const reports::Report& Self(const Stage& stage, const Call& call) {
    if (!call.IsTable(1)) throw ScriptError{"write it with a colon, as report():text()"};
    const auto self = call.FieldText(1, number);
    for (const Preview& preview : stage.previews)
        if (self && std::to_string(preview.number) == *self) return *preview.report;
    throw ScriptError{"this preview is closed"};
}

void SetText(lua_State* lua, const char* field, const std::string& text) {
    lua_pushlstring(lua, text.data(), text.size());
    lua_setfield(lua, -2, field);
}

void SetNumber(lua_State* lua, const char* field, long value) {
    lua_pushinteger(lua, value);
    lua_setfield(lua, -2, field);
}

void SetTexts(lua_State* lua, const char* field, const std::map<int, std::string>& texts) {
    lua_newtable(lua);
    for (const auto& [index, text] : texts) {
        lua_pushlstring(lua, text.data(), text.size());
        lua_rawseti(lua, -2, index);
    }
    lua_setfield(lua, -2, field);
}

void Push(lua_State* lua, const Preview& preview) {
    const reports::Report& report = *preview.report;
    const reports::Facts& facts = report.About();
    lua_newtable(lua);
    SetNumber(lua, number, preview.number);
    SetText(lua, "file", facts.file);
    SetText(lua, "title", report.WindowTitle());
    SetText(lua, "heading", report.Title());
    SetNumber(lua, "pages", report.PageCount());
    SetNumber(lua, "rows", report.RowCount());
    SetText(lua, "connect", facts.request.Connect);
    SetText(lua, "statement", facts.statement);
    SetText(lua, "asked", facts.request.SQLQuery);
    SetNumber(lua, "state", facts.request.WindowState);
    SetTexts(lua, "parameters", facts.request.ParameterFields); // by their index, "Detail;S;True"
    SetTexts(lua, "formulas", facts.request.Formulas);          // the same, "Judul1 ='...'"
    luaL_setmetatable(lua, previewMetatable);
}

void Reports(Stage& stage, Call& call) {
    lua_State* const lua = call.Lua();
    lua_createtable(lua, static_cast<int>(stage.previews.size()), 0);
    lua_Integer at = 0;
    for (const Preview& preview : stage.previews) {
        Push(lua, preview);
        lua_rawseti(lua, -2, ++at);
    }
    call.CountResult();
}

void Report(Stage& stage, Call& call) {
    if (stage.previews.empty()) {
        call.GiveNil();
        return;
    }
    Push(call.Lua(), stage.previews.back());
    call.CountResult();
}

// All pages, or one.
void Text(Stage& stage, Call& call) {
    const reports::Report& report = Self(stage, call);
    if (!call.Has(2)) {
        call.Give(report.Text());
        return;
    }
    const int page = call.Whole(2);
    if (page < 1 || page > report.PageCount())
        throw ScriptError{"the report has " + std::to_string(report.PageCount()) + " pages"};
    call.Give(report.Text(page));
}

void Pdf(Stage& stage, Call& call) {
    const reports::Report& report = Self(stage, call);
    if (!stage.host.writePdf)
        throw ScriptError{"this program was built without the desktop and writes no PDF"};
    stage.host.writePdf(report, stage.PathOf(call.Text(2)));
}

void Csv(Stage& stage, Call& call) { Self(stage, call).WriteCsv(stage.PathOf(call.Text(2))); }

void Xlsx(Stage& stage, Call& call) { Self(stage, call).WriteXlsx(stage.PathOf(call.Text(2))); }

void Close(Stage& stage, Call& call) {
    const reports::Report* const self = &Self(stage, call);
    std::erase_if(stage.previews, [&](const Preview& preview) { return preview.report.get() == self; });
}

constexpr Word words[] = {{"reports", Reports}, {"report", Report}};
constexpr Word methods[] = {{"text", Text}, {"pdf", Pdf}, {"csv", Csv}, {"xlsx", Xlsx}, {"close", Close}};

} // namespace

std::span<const Word> ReportWords() { return words; }
std::span<const Word> PreviewMethods() { return methods; }

} // namespace varnik::console
