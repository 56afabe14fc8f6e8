#pragma once
// The program behind both faces: the services that every screen is built with, and the table "menu key to
// screen". It knows no toolkit; a face brings its desktop and calls Start.

#include "common/Regional.h"
#include "common/Session.h"
#include "platform/ado/Ado.h"
#include "platform/desktop/Services.h"
#include "platform/registry/Registry.h"

namespace varnik {

class Program {
public:
    // The desktop names the program's folder; it outlives the program, and its screens do not.
    Program(Desktop& desktop, const Regional& machine);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Runs start-up until a screen waits for the user.
    void Start();
    Services& Access() { return services_; }
    Regional& Settings() { return regional_; } // to be set before Start alone

private:
    Regional regional_;
    registry::Registry registry_;
    ado::Environment data_;
    Session session_;
    Services services_;
};

} // namespace varnik
