// The names of the telephone system's extensions: how the list is read and stored, and how
// the call records are searched for extensions that it lacks.
#pragma once

#include <string>
#include <vector>

#include "host/run_progress.h"
#include "session/application.h"

namespace tallix {

struct Extension {
    std::string number;
    std::string name;

    bool operator==(const Extension&) const = default;
};

/// All extensions stored. Throws DatabaseError.
std::vector<Extension> LoadExtensions(Session& session);

/// "Get From Data": the extensions of all call records that `known` lacks, each once, without
/// a name, in the order of the records. Trunks, whose number begins with "T", and calls of no
/// extension are passed over. Events are served; the session is to be left alone by their
/// handlers. Throws DatabaseError.
std::vector<Extension> FindNewExtensions(Application& application, const std::vector<Extension>& known,
                                         RunProgress& progress);

/// Adds the extensions over the session's open connection, to the table that the caller has
/// emptied. A row that the server refuses ends it with DatabaseError; those before it are
/// stored.
void StoreExtensions(Session& session, const std::vector<Extension>& extensions);

}  // namespace tallix
