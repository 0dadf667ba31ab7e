#include "database/connection.h"

#include "database/translation.h"
#include "failures/errors.h"

namespace tallix::ado {

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::Open() {
    engine_.reset();
    engine_ = OpenEngine(ReadConnectionText(ConnectionString));
}

void Connection::Close() noexcept {
    engine_.reset();
}

std::int64_t Connection::Execute(std::string_view statement) {
    return Server().Execute(Translate(statement, Server().Kind()));
}

Result Connection::Fetch(std::string_view statement) {
    return Server().Query(Translate(statement, Server().Kind()));
}

Engine& Connection::Server() const {
    if (!engine_) throw DatabaseError("The connection to the database is closed");
    return *engine_;
}

}  // namespace tallix::ado
