#pragma once

namespace varnik {

struct Services;

// Fills the table of screens with those of this folder.
void RegisterMaster(Services& services);

} // namespace varnik
