#pragma once
// The program's entry. It runs once, holds no window of its own, and leaves behind the session that every
// screen reads. Nothing waits: what follows the login is handed to the desktop as a continuation.

namespace varnik {

struct Services;

// Runs start-up until a screen waits for the user. A database that cannot be opened ends the program with
// the error in a box.
void Main(Services& services);

// Fills the table of screens with those of this folder.
void RegisterShell(Services& services);

} // namespace varnik
