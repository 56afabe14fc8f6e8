#pragma once
// The two lists of types that the session keeps for the whole run, each entry the code and the name joined.
// They are filled only from here, by the screens that keep the types; until then they are empty.

#include <string>

namespace varnik {

struct Services;

void LoadProductTypes(Services& services); // kept for completeness: no screen reads it
void LoadCustomerTypes(Services& services);

} // namespace varnik
