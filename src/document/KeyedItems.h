#pragma once
// Drop-downs over rows of a table. An item reads key + " / " + name; what stands before the first "/" is the
// key, and a key alone may be typed.

#include "platform/ado/Ado.h"
#include "platform/forms/Controls.h"

#include <string>

namespace varnik::document {

// One item for each row: the first column is the key, the others make the name. A column that is empty, or
// that stands in the name already, is left out.
void ListItems(forms::ComboBox& box, ado::Recordset& rows, const Regional& regional);

std::string KeyOf(const forms::TextControl& box);  // without blanks; all of the text where there is no "/"
std::string NameOf(const forms::TextControl& box); // what follows the "/", without blanks

// Shows the item of a key; a key without one as it is.
void ShowItem(forms::ComboBox& box, const std::string& key);
// A typed key becomes its item.
inline void CompleteItem(forms::ComboBox& box) { ShowItem(box, KeyOf(box)); }

} // namespace varnik::document
