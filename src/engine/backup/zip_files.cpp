#include "backup/zip_files.h"

#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <fstream>
#include <memory>

#include "platform/paths.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr zip_uint32_t kStrongest = 9;
constexpr zip_int64_t kToTheEnd = -1;
constexpr std::size_t kMostNames = 100;
constexpr std::size_t kPiece = std::size_t{256} * 1024;
constexpr std::uint32_t kAlreadyInList = 0x800407D1;
constexpr std::uint32_t kNotInList = 0x800407D2;

constexpr const char* kNoLibrary =
    "Zip32.dll did not initialize.  Is it in the current directory or on the command path?";
constexpr const char* kPasswordQuestion = "Please Enter The Password!";
constexpr const char* kOverwriteQuestion = "Overwrite ";

struct DropZip {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* member) const { zip_fclose(member); }
};
using Archive = std::unique_ptr<zip_t, DropZip>;
using Member = std::unique_ptr<zip_file_t, DropZip>;

std::string WordsOf(int result) {
    zip_error_t error;
    zip_error_init_with_code(&error, result);
    std::string words = zip_error_strerror(&error);
    zip_error_fini(&error);
    return words;
}

/// An archive that is written to its file when it is closed.
class ZipWriter {
public:
    ZipWriter(const fs::path& file, int flags)
        : archive_(zip_open(file.c_str(), ZIP_CREATE | flags, &result_)) {}

    bool HasBegun() const { return archive_ != nullptr; }
    int Result() const { return result_; }

    void SetPassword(const std::string& password) {
        encrypted_ = !password.empty();
        if (encrypted_) zip_set_default_password(archive_.get(), password.c_str());
    }

    /// Adds a file, or a folder's files, under its name without the root.
    void Add(const fs::path& root, const std::string& name, ZipRecursion recursion) {
        const fs::path file = root / ToNativePath(name);
        std::error_code error;
        if (!fs::is_directory(file, error)) return AddFile(file, root);
        if (recursion == ZipRecursion::None) return;
        for (const auto& below : fs::recursive_directory_iterator(file, error)) {
            if (below.is_regular_file(error)) AddFile(below.path(), root);
        }
    }

    void Close() {
        if (zip_close(archive_.get()) == 0) {
            static_cast<void>(archive_.release());  // zip_close has freed it
        } else {
            NoteFailure();
        }
    }

private:
    void AddFile(const fs::path& file, const fs::path& root) {
        const std::string member = file.lexically_relative(root);
        zip_source_t* source = zip_source_file(archive_.get(), file.c_str(), 0, kToTheEnd);
        const zip_int64_t place =
            zip_file_add(archive_.get(), member.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
        if (place < 0) {
            zip_source_free(source);
            return NoteFailure();
        }
        const auto index = static_cast<zip_uint64_t>(place);
        zip_set_file_compression(archive_.get(), index, ZIP_CM_DEFLATE, kStrongest);
        if (encrypted_) zip_file_set_encryption(archive_.get(), index, ZIP_EM_TRAD_PKWARE, nullptr);
    }

    void NoteFailure() { result_ = zip_error_code_zip(zip_get_error(archive_.get())); }

    int result_ = 0;
    Archive archive_;
    bool encrypted_ = false;
};

/// Reads a member to its end, into a file where one is given. Returns whether all of it
/// was read, is what its checksum says, and was written.
bool Extract(zip_file_t* member, const fs::path& target) {
    std::ofstream file;
    if (!target.empty()) file.open(target, std::ios::binary);
    std::vector<char> piece(kPiece);
    zip_int64_t length = 0;
    while (file && (length = zip_fread(member, piece.data(), piece.size())) > 0) {
        if (file.is_open()) file.write(piece.data(), length);
    }
    if (file.is_open()) file.close();
    return file && length == 0;
}

bool LeavesItsFolder(const fs::path& member) {
    return member.is_absolute() || std::find(member.begin(), member.end(), "..") != member.end();
}

}  // namespace

int ZipFiles(EventQueue& events, Prompts& prompts, const ZipOrder& order) {
    ZipWriter writer(order.zipFile, ZIP_TRUNCATE);
    if (!writer.HasBegun()) {
        prompts.Show({.title = "Tallix Reports", .text = kNoLibrary});
        return writer.Result();
    }
    for (const std::string& name : order.names) writer.Add(order.rootDirectory, name, order.recursion);
    events.ServeDuring([&] { writer.Close(); });
    return writer.Result();
}

void CGZipFiles::AddFile(const std::string& name) {
    if (std::find(names_.begin(), names_.end(), name) != names_.end()) {
        throw ZipListError(kAlreadyInList, "CGZip::AddFile", "File is already in Zip List");
    }
    names_.push_back(name);
}

void CGZipFiles::RemoveFile(const std::string& name) {
    const auto found = std::find(names_.begin() + 1, names_.end(), name);
    if (found == names_.end()) {
        throw ZipListError(kNotInList, "CGZip::RemoveFile", "File is not in Zip List");
    }
    names_.erase(found);
}

int CGZipFiles::MakeZipFile() {
    ZipWriter writer(ToNativePath(ZipFileName), UpdatingZip ? 0 : ZIP_TRUNCATE);
    if (writer.HasBegun()) {
        if (Encrypted && AskPassword) writer.SetPassword(AskPassword(kPasswordQuestion));
        const std::size_t end = std::min(names_.size(), kMostNames + 1);
        for (std::size_t name = 1; name < end; ++name) {
            writer.Add(ToNativePath(RootDirectory), names_[name],
                       RecurseFolders ? ZipRecursion::Folders : ZipRecursion::None);
        }
        writer.Close();
    }
    message_ = WordsOf(writer.Result());
    return writer.Result();
}

fs::path CGUnzipFiles::TargetOf(std::string member) const {
    if (SpaceToUnderscore) std::replace(member.begin(), member.end(), ' ', '_');
    const fs::path name = HonorDirectories ? fs::path(member) : fs::path(member).filename();
    return ToNativePath(Extractdir) / name;
}

bool CGUnzipFiles::MayWrite(const fs::path& file, std::int64_t memberTime) const {
    struct stat there {};
    if (stat(file.c_str(), &there) != 0 || OverWriteFiles) return true;
    if ((ExtractNewer || ExtractOnlyNewer) && there.st_mtime < memberTime) return true;
    return PromptOverwrite && AskOverwrite && AskOverwrite(kOverwriteQuestion + file.filename().string());
}

int CGUnzipFiles::unzip(const std::string& zipName, const std::string& extractFolder) {
    if (!zipName.empty()) ZipFileName = zipName;
    if (!extractFolder.empty()) Extractdir = extractFolder;
    int result = 0;
    const Archive archive(zip_open(ToNativePath(ZipFileName).c_str(), ZIP_RDONLY, &result));
    message_.clear();
    const zip_int64_t members = archive ? zip_get_num_entries(archive.get(), 0) : 0;
    for (zip_int64_t place = 0; place < members; ++place) {
        if (const int failure = UnzipMember(archive.get(), static_cast<std::uint64_t>(place))) {
            result = failure;
        }
    }
    if (!ExtractList) message_ = WordsOf(result);
    return result;
}

int CGUnzipFiles::UnzipMember(zip* archive, std::uint64_t place) {
    zip_stat_t about;
    if (zip_stat_index(archive, place, 0, &about) != 0) return ZIP_ER_INCONS;
    const std::string name = about.name;
    if (ExtractList) message_ += name + "\n";
    if (ExtractList || name.ends_with('/')) return 0;
    if (LeavesItsFolder(name)) return ZIP_ER_INVAL;
    const fs::path target = TestZip ? fs::path() : TargetOf(name);
    if (!TestZip && !MayWrite(target, about.mtime)) return 0;
    std::error_code error;
    fs::create_directories(target.parent_path(), error);
    const Member member(zip_fopen_index(archive, place, 0));
    if (!member) return zip_error_code_zip(zip_get_error(archive));
    return Extract(member.get(), target) ? 0 : ZIP_ER_WRITE;
}

}  // namespace tallix
