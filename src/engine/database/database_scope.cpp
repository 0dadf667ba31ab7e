#include "database/database_scope.h"

#include <utility>

#include "failures/attempt.h"

namespace tallix {

DatabaseScope::DatabaseScope(const DatabaseAddress& address) : kind_(address.kind) {
    if (kind_ == DatabaseKind::Unknown) return;
    auto connection = std::make_unique<ado::Connection>();
    connection->ConnectionString = ConnectionText(address);
    connection->Open();
    connection_ = std::move(connection);
}

DatabaseScope DatabaseScope::TryOpen(const DatabaseAddress& address) {
    DatabaseScope scope(address.kind);
    Attempt([&] { scope = DatabaseScope(address); });
    return scope;
}

ado::Rows DatabaseScope::Query(std::string_view statement) const {
    return ado::Rows(Connection().Fetch(statement));
}

ado::Recordset DatabaseScope::Edit(std::string_view statement) const {
    ado::Recordset rows;
    rows.Open(statement, Connection());
    return rows;
}

std::int64_t DatabaseScope::Execute(std::string_view statement) const {
    return Connection().Execute(statement);
}

ado::Connection& DatabaseScope::Connection() const {
    if (!connection_) throw DatabaseError("The database is not open");
    return *connection_;
}

std::string DatabaseScope::QuotedName(std::string_view name) const {
    const std::string_view quote = IdentifierQuote(kind_);
    std::string quoted(quote);
    return quoted.append(name).append(quote);
}

}  // namespace tallix
