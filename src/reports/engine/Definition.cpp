#include "reports/engine/Definition.h"

#include "common/Text.h"
#include "platform/ado/Ado.h"
#include "reports/engine/Report.h"

#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#define TOML_EXCEPTIONS 1
#include <toml++/toml.h>

namespace varnik::reports {

namespace {

// Reads the keys of one table and refuses what is left over: a misspelt key is a fault, not a silence.
class Section {
public:
    Section(const toml::table& table, std::string name) : table_(table), name_(std::move(name)) {}

    [[noreturn]] static void Fail(const toml::source_region& where, const std::string& what) {
        throw toml::parse_error(what.c_str(), where);
    }
    template <typename T>
    void Get(const char* key, T& into) {
        const toml::node* node = Node(key);
        if (node == nullptr) return;
        if constexpr (std::is_same_v<T, double>) {
            if (!node->is_number()) Fail(node->source(), Named(key) + " has to be a number");
            into = *node->value<double>();
        } else {
            const auto value = node->value_exact<T>();
            if (!value)
                Fail(node->source(), Named(key) + " has to be " +
                                         (std::is_same_v<T, bool> ? "true or false" : "a text in quotes"));
            into = *value;
        }
    }
    void Get(const char* key, int& into) {
        double number = into;
        Get(key, number);
        into = static_cast<int>(number);
    }
    // A text that is read further: template, formula.
    template <typename T>
    void Parse(const char* key, T& into) {
        std::string text;
        Get(key, text);
        if (!text.empty()) into = Read<T>(*Node(key), text);
    }
    template <typename T>
    void Parse(const char* key, std::optional<T>& into) {
        std::string text;
        Get(key, text);
        if (!text.empty()) into = Read<T>(*Node(key), text);
    }
    // One of several words.
    template <typename T>
    void Choose(const char* key, T& into, const std::map<std::string, T>& words) {
        std::string word;
        Get(key, word);
        if (word.empty()) return;
        const auto found = words.find(word);
        if (found == words.end()) Fail(Node(key)->source(), Named(key) + " cannot be \"" + word + "\"");
        into = found->second;
    }
    void Texts(const char* key, const std::function<void(const toml::node&, const std::string&)>& each) {
        Items(key, [&](const toml::node& item) {
            const auto text = item.value_exact<std::string>();
            if (!text) Fail(item.source(), Named(key) + " has to hold texts in quotes");
            each(item, *text);
        });
    }
    // [["Date", "{TglInvoice}"], ...]
    void Pairs(const char* key, std::vector<Labelled>& into) {
        Items(key, [&](const toml::node& item) {
            const toml::array* pair = item.as_array();
            if (pair == nullptr || pair->size() != 2 || !pair->is_homogeneous<std::string>())
                Fail(item.source(), Named(key) + " has to hold pairs of texts");
            into.push_back({*(*pair)[0].value<std::string>(),
                            Read<Template>((*pair)[1], *(*pair)[1].value<std::string>())});
        });
    }
    void Tables(const char* key, const std::function<void(const toml::table&)>& each) {
        Items(key, [&](const toml::node& item) {
            if (!item.is_table()) Fail(item.source(), Named(key) + " has to be written as [[" + key + "]]");
            each(*item.as_table());
        });
    }
    const toml::table* Table(const char* key) {
        const toml::node* node = Node(key);
        if (node != nullptr && !node->is_table()) Fail(node->source(), Named(key) + " has to be a table");
        return node != nullptr ? node->as_table() : nullptr;
    }
    void RefuseTheRest() const {
        for (const auto& [key, node] : table_)
            if (!known_.contains(std::string(key.str())))
                Fail(node.source(), "\"" + std::string(key.str()) + "\" is no key of " + name_);
    }
    template <typename T>
    static T Read(const toml::node& node, const std::string& text) {
        try {
            return T(text);
        } catch (const std::invalid_argument& fault) {
            Fail(node.source(), fault.what());
        }
    }

private:
    const toml::node* Node(const char* key) {
        known_.insert(key);
        return table_.get(key);
    }
    std::string Named(const char* key) const { return "\"" + std::string(key) + "\" of " + name_; }
    void Items(const char* key, const std::function<void(const toml::node&)>& each) {
        const toml::node* node = Node(key);
        if (node == nullptr) return;
        if (!node->is_array()) Fail(node->source(), Named(key) + " has to be a list");
        for (const toml::node& item : *node->as_array()) each(item);
    }

    const toml::table& table_;
    std::string name_;
    std::set<std::string> known_;
};

Column ReadColumn(const toml::table& table) {
    Section section(table, "a column");
    Column column;
    section.Get("heading", column.heading);
    section.Get("field", column.field);
    section.Parse("formula", column.formula);
    section.Parse("text", column.text);
    section.Get("days", column.days);
    section.Get("running", column.running);
    section.Get("width", column.width);
    section.Get("flex", column.flex);
    section.Choose<std::optional<Align>>(
        "align", column.align, {{"left", Align::Left}, {"right", Align::Right}, {"center", Align::Center}});
    section.Get("mask", column.mask);
    section.Get("total", column.total);
    section.Get("total_of", column.totalOf);
    section.Choose<Show>("show", column.show,
                         {{"always", Show::Always}, {"detail", Show::Detail}, {"summary", Show::Summary}});
    section.Get("optional", column.optional);
    section.Get("hide_zero", column.hideZero);
    if (const toml::table* bounds = section.Table("age")) {
        Section ageSection(*bounds, "an age");
        column.age.emplace();
        ageSection.Get("date", column.age->date);
        ageSection.Get("from", column.age->from);
        ageSection.Get("up_to", column.age->upTo);
        ageSection.RefuseTheRest();
    }
    section.RefuseTheRest();
    const int sources = !column.field.empty() + column.formula.has_value() + !column.text.Empty() +
                        !column.days.empty() + column.running;
    if (sources != 1)
        Section::Fail(table.source(), "a column has exactly one of field, formula, text, days, running");
    if (column.width <= 0) Section::Fail(table.source(), "a column has to be wider than nothing");
    return column;
}

Group ReadGroup(const toml::table& table) {
    Section section(table, "a group");
    Group group;
    section.Get("by", group.by);
    section.Parse("header", group.header);
    section.Parse("footer", group.footer);
    section.Get("footer_from", group.footerFrom);
    section.Get("summary", group.summary);
    section.Get("new_page", group.newPage);
    section.Get("heading", group.heading);
    section.RefuseTheRest();
    if (group.by.empty()) Section::Fail(table.source(), "a group lacks \"by\", the column it follows");
    return group;
}

Running ReadRunning(const toml::table& table) {
    Section section(table, "running");
    Running running;
    section.Parse("change", running.change);
    section.Get("opening", running.opening);
    section.Get("closing", running.closing);
    section.Get("balance", running.balance);
    section.Get("opening_caption", running.openingCaption);
    section.Get("closing_caption", running.closingCaption);
    section.RefuseTheRest();
    return running;
}

Document ReadDocument(const toml::table& table) {
    Section section(table, "document");
    Document document;
    const auto templates = [&](const char* key, std::vector<Template>& into) {
        section.Texts(key, [&](const toml::node& node, const std::string& text) {
            into.push_back(Section::Read<Template>(node, text));
        });
    };
    section.Get("heading", document.heading);
    section.Get("to_caption", document.toCaption);
    templates("to", document.to);
    section.Pairs("fields", document.fields);
    section.Pairs("totals", document.totals);
    section.Get("words_caption", document.wordsCaption);
    section.Parse("words", document.words);
    templates("notes", document.notes);
    section.Texts("signatures",
                  [&](const toml::node&, const std::string& text) { document.signatures.push_back(text); });
    section.RefuseTheRest();
    return document;
}

Definition Read(const toml::table& table) {
    Section section(table, "a report");
    Definition definition;
    definition.subtitle = Template("{SubJudul}");
    section.Parse("title", definition.title);
    section.Parse("subtitle", definition.subtitle);
    section.Get("query", definition.query);
    section.Choose<bool>("paper", definition.across, {{"upright", false}, {"across", true}});
    section.Get("font_size", definition.fontSize);
    section.Get("headings", definition.headings);
    section.Texts("sort",
                  [&](const toml::node&, const std::string& name) { definition.sort.push_back(name); });
    section.Get("leave_out_zero", definition.leaveOutZero);
    section.Get("summary", definition.summary);
    section.Get("total_caption", definition.totalCaption);
    section.Tables("column",
                   [&](const toml::table& item) { definition.columns.push_back(ReadColumn(item)); });
    section.Tables("group", [&](const toml::table& item) { definition.groups.push_back(ReadGroup(item)); });
    if (const toml::table* running = section.Table("running")) definition.running = ReadRunning(*running);
    if (const toml::table* document = section.Table("document"))
        definition.document = ReadDocument(*document);
    section.RefuseTheRest();
    for (const Column& column : definition.columns)
        if (column.running && !definition.running)
            Section::Fail(table.source(), "a running column needs the [running] section");
    if (definition.running && !definition.running->balance.empty() && definition.groups.empty())
        Section::Fail(table.source(), "a balance that the rows hold needs a [[group]] that it belongs to");
    return definition;
}

} // namespace

Definition ReadDefinition(const std::string& text, const std::string& file) {
    try {
        Definition definition = Read(toml::parse(text, file));
        definition.file = file;
        return definition;
    } catch (const toml::parse_error& fault) {
        throw ado::DataError(BrokenDefinition, "The report definition \"" + file + "\" is broken in line " +
                                                   std::to_string(fault.source().begin.line) + ": " +
                                                   std::string(fault.description()) + ".");
    }
}

Definition LoadDefinition(const std::filesystem::path& folder, const std::string& file) {
    std::error_code noFolder;
    std::filesystem::path found;
    for (const auto& entry : std::filesystem::directory_iterator(folder, noFolder)) {
        const std::string name = entry.path().filename().string();
        if (EqualsNoCase(name, file) && (found.empty() || name == file)) found = entry.path();
    }
    if (std::ifstream stream(found, std::ios::binary); !found.empty() && stream) {
        std::ostringstream text;
        text << stream.rdbuf();
        if (!stream.bad()) return ReadDefinition(text.str(), found.filename().string());
    }
    throw ado::DataError(MissingDefinition, "The report definition \"" + file +
                                                "\" is missing or cannot be read in the folder \"" +
                                                folder.string() + "\".");
}

} // namespace varnik::reports
