// The zip layer: standard ZIP files, deflated at the strongest level. ZipFiles makes the
// archive of one job; CGZipFiles and CGUnzipFiles are the general interface.
//
// Only the list of names throws. A result code is 0 on success, else the zip library's own
// number, with its text in GetLastMessage.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/event_queue.h"
#include "host/prompts.h"

struct zip;  // the library's archive

namespace tallix {

/// A name that is in the list of a zip file already, or is not in it.
class ZipListError : public std::runtime_error {
public:
    ZipListError(std::uint32_t errorCode, std::string errorSource, const char* text)
        : std::runtime_error(text), code(errorCode), source(std::move(errorSource)) {}

    std::uint32_t code;
    std::string source;
};

/// What becomes of names that are folders, and where names are looked for.
enum class ZipRecursion {
    None = 0,       ///< a folder is passed over
    Folders = 1,    ///< a folder adds everything below it
    UnderRoot = 2,  ///< the same; the mode of names that are looked for under the root
};

/// One archive to be made. Members have their names without the root directory.
struct ZipOrder {
    std::filesystem::path zipFile;
    std::vector<std::string> names;  ///< under the root directory
    std::filesystem::path rootDirectory;
    ZipRecursion recursion = ZipRecursion::None;
};

/// Makes an archive, replacing the file. A failure leaves an existing file unchanged. Events
/// are served meanwhile. Returns the library's result; only a failure to begin shows a
/// message.
int ZipFiles(EventQueue& events, Prompts& prompts, const ZipOrder& order);

class CGZipFiles {
public:
    /// Both throw ZipListError.
    void AddFile(const std::string& name);
    void RemoveFile(const std::string& name);

    /// Makes the archive of the first 100 names and returns the library's result.
    int MakeZipFile();

    int ZipFileCount() const { return static_cast<int>(names_.size()) - 1; }
    const std::string& GetLastMessage() const { return message_; }

    bool RecurseFolders = false;
    std::string ZipFileName;
    bool Encrypted = false;           ///< with the answer of AskPassword; a plain file where that is empty
    bool IncludeSystemFiles = false;  ///< kept; no file is a system file here
    std::string RootDirectory = "\\";
    bool UpdatingZip = false;  ///< adds to an existing archive, or replaces its members

    /// Is asked "Please Enter The Password!".
    std::function<std::string(const std::string& question)> AskPassword;

private:
    std::vector<std::string> names_ = {"querty"};  ///< begins with a marker that is not a file
    std::string message_;
};

class CGUnzipFiles {
public:
    /// Takes an archive and a folder, each from its property where it is empty here, and
    /// writes the members into the folder. Nothing is written outside of it. Returns the
    /// library's result for the last member that failed.
    int unzip(const std::string& zipName, const std::string& extractFolder);

    const std::string& GetLastMessage() const { return message_; }

    std::string ZipFileName;
    std::string Extractdir;
    bool TestZip = false;           ///< reads and checks the members, and writes none
    bool ExtractList = false;       ///< only puts their names into the last message
    bool HonorDirectories = false;  ///< makes the folders of the archive; else all files go into one
    bool SpaceToUnderscore = false;

    // An existing file is kept unless one of these allows replacing it.
    bool OverWriteFiles = false;
    bool PromptOverwrite = false;   ///< asks "Overwrite " and the name, where AskOverwrite is set
    bool ExtractNewer = false;      ///< writes over files that are older than their member
    bool ExtractOnlyNewer = false;  ///< the same

    // Stored without effect: names, line ends and privileges stay as they are, without a console.
    int MessageLevel = 0;
    bool WriteToStdOut = false;
    bool ConvertCRtoCRLF = false;
    bool Verbose = false;
    bool CaseSensitive = false;
    bool Privilege = false;

    std::function<bool(const std::string& question)> AskOverwrite;

private:
    int UnzipMember(zip* archive, std::uint64_t place);
    bool MayWrite(const std::filesystem::path& file, std::int64_t memberTime) const;
    std::filesystem::path TargetOf(std::string member) const;

    std::string message_;
};

}  // namespace tallix
