#include "document/KeyedItems.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <algorithm>

namespace varnik::document {

namespace {

std::string KeyIn(const std::string& item) { return Trim(item.substr(0, item.find('/'))); }

} // namespace

void ListItems(forms::ComboBox& box, ado::Recordset& rows, const Regional& regional) {
    std::vector<std::string> items;
    for (; !rows.Eof(); rows.MoveNext()) {
        std::vector<std::string> name;
        for (int column = 1; column < rows.FieldCount(); ++column) {
            std::string text = Trim(NullToText(rows[column], regional));
            if (!text.empty() && std::ranges::find(name, text) == name.end()) name.push_back(std::move(text));
        }
        std::string item = Trim(NullToText(rows[0], regional)) + " / ";
        for (std::size_t i = 0; i < name.size(); ++i) item += (i == 0 ? "" : " - ") + name[i];
        items.push_back(std::move(item));
    }
    box.SetItems(std::move(items));
}

std::string KeyOf(const forms::TextControl& box) { return KeyIn(box.Text()); }

std::string NameOf(const forms::TextControl& box) {
    const std::size_t slash = box.Text().find('/');
    return slash == std::string::npos ? "" : Trim(box.Text().substr(slash + 1));
}

void ShowItem(forms::ComboBox& box, const std::string& key) {
    const auto item = std::ranges::find_if(
        box.Items(), [&](const std::string& each) { return EqualsNoCase(KeyIn(each), key); });
    box.SetText(item == box.Items().end() ? key : *item);
}

} // namespace varnik::document
