#include "session/logout.h"

#include <array>
#include <system_error>

#include "session/access_log.h"

namespace tallix {
namespace {

constexpr std::array<const char*, 2> kLeftovers = {"Temp.dat", "Temp2.dat"};

}  // namespace

std::string ConnectedLine(const Session& session) {
    return "Connected To: " + session.database.server + " As User: " + session.CurrentUser;
}

void NoteLoggedOut(Application& application) {
    LogOnItsOwn(application.session, application.clock, "Logged Out");
}

void DeleteLeftovers(const std::filesystem::path& applicationFolder) {
    std::error_code ignored;
    for (const char* name : kLeftovers) std::filesystem::remove(applicationFolder / name, ignored);
}

}  // namespace tallix
