// The names of the telephone system's extensions: how the list is read and stored, and how
// the call records are searched for extensions that it lacks.
#pragma once

#include <string>
#include <vector>

#include "database/database_scope.h"
#include "host/run_progress.h"
#include "session/application.h"

namespace tallix {

struct Extension {
    std::string number;
    std::string name;

    bool operator==(const Extension&) const = default;
};

/// All extensions stored. Throws DatabaseError.
std::vector<Extension> LoadExtensions(const Session& session);

/// "Get From Data": the extensions of all call records that `known` lacks, each once, without
/// a name, in the order of the records. Skips trunks, whose number begins with "T", and calls
/// without an extension. Serves events. Throws DatabaseError.
std::vector<Extension> FindNewExtensions(const Application& application, const std::vector<Extension>& known,
                                         RunProgress& progress);

/// Adds the extensions to the table, which the caller has emptied. Throws DatabaseError when
/// the server refuses a row; those before it are stored.
void StoreExtensions(const DatabaseScope& database, const std::vector<Extension>& extensions);

}  // namespace tallix
