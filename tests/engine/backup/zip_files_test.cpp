#include "backup/zip_files.h"

#include <gmock/gmock.h>

#include "support/run_program.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

TEST(ZipFiles, AreReadByOtherProgramsAndUnzipped) {
    const test::TempFolder folder;
    const std::string root = folder.Path();
    folder.Write("below/a file.txt", std::string(100'000, 'x'));
    CGZipFiles zip;
    zip.ZipFileName = root + "/made.zip";
    zip.RootDirectory = root;
    zip.RecurseFolders = zip.Encrypted = true;
    zip.AskPassword = [](const std::string& question) { return question; };
    zip.AddFile("below");
    EXPECT_THROW(zip.AddFile("below"), ZipListError);
    EXPECT_THROW(zip.RemoveFile("querty"), ZipListError) << "the marker is not a file";
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    const std::string question = "Please Enter The Password!";
    EXPECT_EQ(test::RunProgram("/usr/bin/unzip", {"-P", question, "-t", zip.ZipFileName}).status, 0);

    zip.Encrypted = false;
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    EXPECT_LT(std::filesystem::file_size(zip.ZipFileName), 1000);
    CGUnzipFiles unzip;
    unzip.SpaceToUnderscore = unzip.HonorDirectories = unzip.PromptOverwrite = true;
    const std::filesystem::path out = folder.Write("out/below/a_file.txt", "mine");
    EXPECT_EQ(unzip.unzip(zip.ZipFileName, root + "/out"), 0) << unzip.GetLastMessage();
    EXPECT_EQ(test::ReadBytes(out), "mine");
    unzip.AskOverwrite = [](const std::string& asked) { return asked == "Overwrite a_file.txt"; };
    EXPECT_EQ(unzip.unzip("", ""), 0);
    EXPECT_EQ(std::filesystem::file_size(out), 100'000);
}

TEST(ZipFiles, ReturnTheFailureAndShowOneThatStopsTheBeginning) {
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

}  // namespace
}  // namespace tallix
