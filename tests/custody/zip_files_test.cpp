#include "custody/zip_files.h"

#include <gmock/gmock.h>

#include "custody/path_parts.h"
#include "support/run_program.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

using test::ReadBytes;

TEST(ZipFiles, GoThereAndBackAgain) {
    const test::TempFolder folder;
    const std::string root = folder.Path();
    folder.Write("a file.txt", std::string(100'000, 'x'));
    folder.Write("below/b.txt", "second");
    CGZipFiles zip;
    zip.ZipFileName = root + "/made.zip";
    zip.RootDirectory = root;
    zip.RecurseFolders = zip.Encrypted = true;
    zip.AskPassword = [](const std::string& question) { return question; };
    zip.AddFile("a file.txt");
    try {
        zip.AddFile("a file.txt");
        ADD_FAILURE() << "taken twice";
    } catch (const ZipListError& error) {
        EXPECT_EQ(error.code, 0x800407D1);
        EXPECT_STREQ(error.what(), "File is already in Zip List");
    }
    EXPECT_THROW(zip.RemoveFile("querty"), ZipListError);
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    const auto tested =
        test::RunProgram("/usr/bin/unzip", {"-P", "Please Enter The Password!", "-t", zip.ZipFileName});
    EXPECT_EQ(tested.status, 0) << tested.out << tested.err;

    zip.Encrypted = false;
    zip.AddFile("below");
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    EXPECT_LT(std::filesystem::file_size(zip.ZipFileName), 1000);
    CGUnzipFiles unzip;
    unzip.SpaceToUnderscore = unzip.HonorDirectories = true;
    folder.Write("out/below/b.txt", "mine");
    EXPECT_EQ(unzip.unzip(zip.ZipFileName, root + "/out"), 0) << unzip.GetLastMessage();
    EXPECT_EQ(ReadBytes(folder.Path() / "out/a_file.txt").size(), 100'000);
    EXPECT_EQ(ReadBytes(folder.Path() / "out/below/b.txt"), "mine");
    unzip.PromptOverwrite = true;
    unzip.AskOverwrite = [](const std::string& question) { return question == "Overwrite b.txt"; };
    EXPECT_EQ(unzip.unzip("", ""), 0);
    EXPECT_EQ(ReadBytes(folder.Path() / "out/below/b.txt"), "second");
}

TEST(ZipFiles, ReturnTheFailureAndOnlyTellOfOneThatStopsTheBeginning) {
    const test::TempFolder folder;
    folder.Write("archive.tmp", "text");
    NoEvents events;
    const std::pair<std::string, std::size_t> targets[] = {{"absent/a.SAF", 0}, {"", 1}};
    for (const auto& [target, boxes] : targets) {
        test::ScriptedPrompts prompts;
        EXPECT_NE(ZipFiles(events, prompts, {folder.Path() / target, {"archive.tmp"}, folder.Path()}), 0);
        EXPECT_EQ(prompts.messages.size(), boxes) << target;
    }
}

TEST(PieceOf, GivesTenPieces) {
    const char* const pieces[] = {
        "calls.SAF",  "calls",           "SAF", "/data/old",          "old",
        "/data/old/", "/data/old/calls", "/",   "data/old/calls.SAF", "/data/old/calls.SAF"};
    for (int mode = 1; mode <= 10; ++mode) {
        EXPECT_EQ(PieceOf("\\data\\old\\calls.SAF", static_cast<PathPart>(mode)), pieces[mode - 1]);
    }
}

}  // namespace
}  // namespace tallix
