#include "world.h"

#include <fstream>
#include <sstream>

#include "database/connection.h"
#include "database/database_scope.h"
#include "database/schema.h"
#include "setup/demo_data.h"
#include "setup/reference_data.h"

namespace tallix::bench {

namespace {

constexpr std::uint64_t kSeed = 1;
constexpr std::string_view kEmbedded = "sqlite:";
const std::filesystem::path kData = std::filesystem::path(TALLIX_SOURCE_DIR) / "data";

}  // namespace

World::World(const EngineAddress& engine, std::uint64_t calls, const std::filesystem::path& folder)
    : application{.folder = folder / engine.name,
                  .tempFolder = folder / engine.name / "temp",
                  .version = ProgramVersion(),
                  .settings = settings_,
                  .prompts = prompts_,
                  .clock = clock_,
                  .events = events_},
      settings_(folder / engine.name, folder / engine.name, prompts_) {
    std::filesystem::create_directories(application.tempFolder);
    if (engine.address.starts_with(kEmbedded)) {
        std::ofstream(engine.address.substr(kEmbedded.size()), std::ios::app);
    }
    Session& session = application.session;
    session.database = {DatabaseKindOf(engine.dbType), engine.address, engine.user, engine.password};
    session.Currency = "£";
    Fill(calls);
}

ado::ConnectionParts World::Parts() const {
    return ado::ReadConnectionText(ConnectionText(application.session.database));
}

void World::Fill(std::uint64_t calls) {
    const DatabaseScope database(application.session.database);
    ado::Connection& connection = database.Connection();
    std::ostringstream said;
    LayDownSchema(connection, kData / "schema");
    FillReferenceData(connection, kData / "reference", said);
    AddDemonstration(connection, calls, kSeed, said);
}

}  // namespace tallix::bench
