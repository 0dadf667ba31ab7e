#include "platform/child_process.h"

#include <spawn.h>
#include <sys/mman.h>

#include "platform/descriptor.h"
#include "platform/detached_process.h"

namespace tallix {
namespace {

/// One of the child's three streams. Files in memory, unlike pipes, are never full, so
/// that neither side can wait for the other.
Descriptor MakeStream(std::string_view text = {}) {
    Descriptor stream(memfd_create("stream", MFD_CLOEXEC));
    if (!WriteAll(stream, text)) return Descriptor(-1);
    lseek(stream.Number(), 0, SEEK_SET);
    return stream;
}

std::string TextOf(const Descriptor& stream) {
    std::string text;
    lseek(stream.Number(), 0, SEEK_SET);
    ReadToEnd(stream, text);
    return text;
}

class Redirections {
public:
    Redirections() { posix_spawn_file_actions_init(&actions_); }
    ~Redirections() { posix_spawn_file_actions_destroy(&actions_); }
    Redirections(const Redirections&) = delete;
    Redirections& operator=(const Redirections&) = delete;

    void Add(int stream, const Descriptor& to) {
        posix_spawn_file_actions_adddup2(&actions_, to.Number(), stream);
    }
    const posix_spawn_file_actions_t* Get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

ChildResult RunChild(const std::vector<std::string>& command, std::string_view input) {
    const Descriptor in = MakeStream(input);
    const Descriptor out = MakeStream();
    const Descriptor error = MakeStream();
    if (!in.IsOpen() || !out.IsOpen() || !error.IsOpen()) return {};
    Redirections redirections;
    redirections.Add(STDIN_FILENO, in);
    redirections.Add(STDOUT_FILENO, out);
    redirections.Add(STDERR_FILENO, error);
    std::vector<std::string> words = command;
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawnp(&child, pointers.front(), redirections.Get(), nullptr, pointers.data(), environ) != 0)
        return {};
    const int status = WaitForChild(child);
    return {status, TextOf(out), TextOf(error)};
}

}  // namespace tallix
