#include "platform/whole_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

std::string Marked(const std::string& text) {
    return text + "+";
}

mode_t ModeOf(const fs::path& file) {
    struct stat state {};
    return stat(file.c_str(), &state) == 0 ? state.st_mode & 0777U : 0U;
}

TEST(WholeFile, KeepsModeAndLinkOfWhatItReplaces) {
    const test::TempFolder folder;
    folder.Write("real", "text");
    chmod((folder.Path() / "real").c_str(), 0604);
    fs::create_symlink("real", folder.Path() / "link");
    EXPECT_TRUE(RewriteWholeFile(folder.Path() / "link", 0640, &Marked));
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
    EXPECT_EQ(test::ReadBytes(folder.Path() / "real"), "text+");
    EXPECT_EQ(ModeOf(folder.Path() / "real"), 0604U);
    EXPECT_TRUE(RewriteWholeFile(folder.Path() / "new", 0600, &Marked));
    EXPECT_EQ(ModeOf(folder.Path() / "new"), 0600U);
}

TEST(WholeFile, ReplacesOnlyWhatItCouldRead) {
    const test::TempFolder folder;
    const fs::path pipe = folder.Path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_directory(folder.Path() / "folder");
    fs::create_symlink("nowhere/x", folder.Path() / "dangling");
    for (const char* name : {"pipe", "folder", "dangling", "absent/file"}) {
        EXPECT_EQ(ReadWholeFile(folder.Path() / name), std::nullopt) << name;
        EXPECT_FALSE(RewriteWholeFile(folder.Path() / name, 0640, &Marked)) << name;
    }
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 3);
}

}  // namespace
}  // namespace tallix
