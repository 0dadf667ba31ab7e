// Opening the database in work that windows wait for.
#pragma once

#include "database/database_scope.h"
#include "host/event_queue.h"

namespace tallix {

/// Opens the database while events are served. Throws DatabaseError.
inline DatabaseScope OpenServing(EventQueue& events, const DatabaseAddress& address) {
    DatabaseScope database;
    events.ServeDuring([&] { database = DatabaseScope(address); });
    return database;
}

}  // namespace tallix
