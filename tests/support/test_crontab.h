// A crontab of a test's own: while it lives, this process finds a program "crontab" that
// keeps its text in a file, so that the user's tasks are left alone.
#pragma once

#include <cstdlib>
#include <string>

#include "support/temp_folder.h"

namespace tallix::test {

class TestCrontab {
public:
    TestCrontab() {
        if (const char* path = std::getenv("PATH")) searchPath_ = path;
        const std::filesystem::path program = folder_.Write("crontab", R"(#!/bin/sh
file=$(dirname "$0")/text
case $1 in
-l) if [ -e "$file" ]; then cat "$file"; else echo "no crontab for test" >&2; exit 1; fi ;;
-r) rm "$file" ;;
-) cat >"$file.new" && mv "$file.new" "$file" ;;
esac
)");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        setenv("PATH", (folder_.Path().string() + ":" + searchPath_).c_str(), 1);
    }
    ~TestCrontab() { setenv("PATH", searchPath_.c_str(), 1); }
    TestCrontab(const TestCrontab&) = delete;
    TestCrontab& operator=(const TestCrontab&) = delete;

    std::string Text() const { return ReadBytes(folder_.Path() / "text"); }
    void Set(std::string_view text) const { folder_.Write("text", text); }

private:
    TempFolder folder_;
    std::string searchPath_;
};

}  // namespace tallix::test
