#include "platform/ado/Connection.h"

namespace varnik::ado {

double Divide(double dividend, double divisor) {
    if (divisor == 0) throw DataError(DivisionByZero, "Division by zero");
    return dividend / divisor;
}

Connection::Connection(const Environment& environment) : impl_(std::make_unique<Impl>()) {
    impl_->environment = &environment;
}

Connection::Connection(const Environment& environment, std::string_view connectionString)
    : Connection(environment) {
    Open(connectionString);
}

Connection::Connection(Connection&&) noexcept = default;

Connection& Connection::operator=(Connection&& other) noexcept {
    std::swap(impl_, other.impl_);
    return *this;
}

Connection::~Connection() {
    try {
        if (impl_) Close();
    } catch (const DataError&) {
        // A destructor has nobody to tell; whoever wants to know closes.
    }
}

void Connection::Open(std::string_view connectionString) {
    Close();
    const std::filesystem::path file = impl_->environment->resolve(connectionString);
    auto state = std::make_shared<ConnectionState>();
    state->session = TakeSession(file, *impl_->environment);
    impl_->text = connectionString;
    impl_->state = std::move(state);
}

void Connection::Close() {
    if (!IsOpen()) return;
    const std::shared_ptr<Session> session = std::move(impl_->state->session);
    impl_->state->session = nullptr;
    const bool wrote = impl_->state->wrote;
    impl_->state = nullptr;
    if (wrote) session->Guard([&] { session->Sync(); });
    ReturnSession(session);
}

bool Connection::IsOpen() const { return impl_ && impl_->state && impl_->state->session; }

const std::string& Connection::ConnectionString() const { return impl_->text; }

long Connection::Execute(std::string_view sql) {
    Session& session = impl_->Open();
    return session.Guard([&]() -> long {
        const jet::Tokens tokens = jet::Tokenize(sql);
        const std::shared_ptr<const jet::Form> form = session.FormOf(tokens);
        const std::vector<Value> parameters = jet::Fill(*form, tokens, *session.Surroundings().regional);
        Running running(session.Compile(form->statement.sql), parameters);
        if (!running.Writes()) return running.Step(), 0;
        const long changes = session.Write(running);
        impl_->state->wrote = true;
        return changes;
    });
}

void SyncWritten() { SyncSessions(); }

void ReleaseDatabase(const std::filesystem::path& file) { ReleaseSessions(file); }

} // namespace varnik::ado
