#pragma once
// What a connection and its recordsets share.

#include "platform/ado/Session.h"

namespace varnik::ado {

// Recordsets hold this too: closing the connection takes the session away from them.
struct ConnectionState {
    std::shared_ptr<Session> session;
    bool wrote = false;
};

struct Connection::Impl {
    const Environment* environment = nullptr;
    std::string text;
    std::shared_ptr<ConnectionState> state;

    Session& Open() const {
        if (!state || !state->session) throw DataError(ObjectClosed, "The connection is closed.");
        return *state->session;
    }
};

} // namespace varnik::ado
