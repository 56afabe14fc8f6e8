#pragma once
// What the console's parts share.

#include <string>

namespace varnik::console {

// Something that the script asked for and a person could not do, or a box that nobody answers. It is no
// std::exception, so that no handler of a screen takes it for a failing statement: it ends the word.
struct ScriptError {
    std::string text;
};

} // namespace varnik::console
