#pragma once
// What hands do by chance with keys and tables.

#include "platform/forms/Grid.h"
#include "platform/forms/Key.h"
#include "tests/walk/support/Chance.h"

#include <functional>
#include <string>

namespace varnik::walk {

forms::Key AnyKeyOf(Chance& chance);
std::string NameOf(const forms::Key& key);

struct TableHand {
    std::string name;
    std::function<void()> act;
};
// A click, a double click, a tick or a pick of a row, there or not.
TableHand AnyTableHandOf(Chance& chance, forms::Control& table);

} // namespace varnik::walk
