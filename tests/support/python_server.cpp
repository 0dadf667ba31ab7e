#include "support/python_server.h"

#include <chrono>
#include <stdexcept>
#include <thread>
#include "support/places.h"

namespace tallix::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 20s;

}  // namespace

PythonServer::PythonServer(const std::string& script, const std::vector<std::string>& arguments) {
    // The system's own interpreter: others do not see Debian's packages.
    std::string command =
        "exec /usr/bin/python3 '" + (SourceFolder() / "tests/support" / script).string() + "'";
    for (const std::string& argument : arguments) command += " '" + argument + "'";
    const std::filesystem::path port = folder_.Path() / "port";
    input_ = popen((command + " >" + port.string()).c_str(), "we");
    if (input_ == nullptr) throw std::runtime_error(script + " did not start");
    for (auto waited = 0ms; waited < kPatience && !ReadBytes(port).ends_with('\n'); waited += 10ms) {
        std::this_thread::sleep_for(10ms);
    }
    port_ = std::atoi(ReadBytes(port).c_str());
    if (port_ == 0) throw std::runtime_error(script + " printed no port");
}

PythonServer::~PythonServer() {
    pclose(input_);
}

}  // namespace tallix::test
