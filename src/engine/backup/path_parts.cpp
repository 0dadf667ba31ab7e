#include "backup/path_parts.h"

#include "platform/paths.h"

namespace tallix {
namespace {

std::string WithoutDot(const std::string& ending) {
    return ending.empty() ? ending : ending.substr(1);
}

}  // namespace

std::string PieceOf(std::string_view path, PathPart part) {
    const std::filesystem::path whole = ToNativePath(path);
    switch (part) {
        case PathPart::FileName:
            return whole.filename();
        case PathPart::Stem:
            return whole.stem();
        case PathPart::Ending:
            return WithoutDot(whole.extension());
        case PathPart::Folder:
            return whole.parent_path();
        case PathPart::FolderName:
            return whole.parent_path().filename();
        case PathPart::FolderSlash:
            return whole.parent_path() / "";
        case PathPart::WithoutEnding:
            return whole.parent_path() / whole.stem();
        case PathPart::Root:
            return whole.root_path();
        case PathPart::BelowRoot:
            return whole.relative_path();
        case PathPart::Whole:
            break;
    }
    return whole;
}

}  // namespace tallix
