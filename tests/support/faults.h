// What goes wrong on a machine: a server that stops, a disk that is full.
#pragma once

#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <string>
#include <thread>

#include "support/places.h"
#include "support/run_program.h"
#include "support/test_application.h"

namespace tallix::test {

/// A MariaDB of a test's own, without tables, which the test may stop.
class OwnServer {
public:
    OwnServer() {
        std::filesystem::permissions(folder_.Path(), std::filesystem::perms(0755));
        RunProgram("/bin/bash", {script_, "start", data_});
        const std::string line = ReadLines(data_ + "/env").at(0);
        address.server = line.substr(line.find('=') + 1);
    }
    ~OwnServer() { RunProgram("/bin/bash", {script_, "stop", data_}); }

    void Stop() const {
        const pid_t process = std::stoi(ReadBytes(data_ + "/mariadb.pid"));
        kill(process, SIGTERM);
        while (kill(process, 0) == 0) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    DatabaseAddress address = {DatabaseKind::MySql, "", "Tallix", "norvadat"};

private:
    const std::string script_ = SourceFolder() / "scripts/servers.sh";
    TempFolder folder_;
    std::string data_ = folder_.Path() / "servers";
};

/// For as long as it lives, this process finds the disk full when a file reaches a size.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : before_(signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &whole_);
        const rlimit small = {bytes, whole_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &whole_);
        signal(SIGXFSZ, before_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit whole_{};
    void (*before_)(int);
};

}  // namespace tallix::test
