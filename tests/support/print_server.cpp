#include "support/print_server.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace tallix::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr char kInstalled[] = "/usr/lib/cups";

// The device: what it receives becomes a file whose name contains the job's number, whole
// from its first moment.
constexpr char kDevice[] = R"(#!/bin/sh
[ $# -eq 0 ] && {{ echo 'file keep "Test" "Test"'; exit 0; }}
cat "${{6:-/dev/stdin}}" >'{0}/part' && mv '{0}/part' '{0}'/$(printf '%05d' "$1").pdf
)";

constexpr char kFiles[] = R"(SystemGroup root
ServerRoot {0}
ServerBin {0}/bin
StateDir {0}
RequestRoot {0}/spool
CacheDir {0}/cache
TempDir {0}/spool
ErrorLog {0}/error_log
AccessLog {0}/access_log
PageLog {0}/page_log
)";

constexpr char kServer[] = R"(Listen {0}/cups.sock
Browsing No
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
)";

constexpr char kQueue[] = R"(<DefaultPrinter {0}>
DeviceURI keep:/
State Idle
Accepting Yes
</DefaultPrinter>
)";

}  // namespace

PrintServer::PrintServer(const std::string& printer) {
    const std::string root = folder_.Path().string();
    for (const char* name : {"bin", "bin/backend", "spool", "cache", "jobs"}) {
        fs::create_directories(folder_.Path() / name);
    }
    for (const char* name : {"filter", "daemon", "monitor", "notifier", "cgi-bin"}) {
        fs::create_symlink(fs::path(kInstalled) / name, folder_.Path() / "bin" / name);
    }
    const fs::path device = folder_.Write("bin/backend/keep", fmt::format(kDevice, root + "/jobs"));
    // A device that others may not run has the server's rights.
    fs::permissions(device, fs::perms::owner_all);
    folder_.Write("cups-files.conf", fmt::format(kFiles, root));
    folder_.Write("cupsd.conf", fmt::format(kServer, root));
    folder_.Write("printers.conf", fmt::format(kQueue, printer));

    process_.emplace(fmt::format("/usr/sbin/cupsd -f -c {0}/cupsd.conf -s {0}/cups-files.conf", root));
    const std::string socket = root + "/cups.sock";
    for (auto waited = 0ms; !fs::exists(socket); waited += 20ms) {
        if (waited > 10s) throw std::runtime_error("no print server: " + ReadBytes(root + "/error_log"));
        std::this_thread::sleep_for(20ms);
    }
    setenv("CUPS_SERVER", socket.c_str(), 1);
}

std::vector<fs::path> PrintServer::Jobs() const {
    std::vector<fs::path> jobs;
    for (const auto& entry : fs::directory_iterator(folder_.Path() / "jobs")) {
        if (entry.path().extension() == ".pdf") jobs.push_back(entry.path());
    }
    std::sort(jobs.begin(), jobs.end());
    return jobs;
}

}  // namespace tallix::test
