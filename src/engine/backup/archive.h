// Archiving: old calls leave tblphonedata, either for a zipped text file (.SAF) or for
// the table tblarchive.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/run_progress.h"
#include "session/application.h"

namespace tallix {

enum class ArchivePeriod { None, EntireYear, SelectedMonths };
enum class ArchiveDestination { ToFile, ToDatabase };

/// Where an archive file goes. The location alone decides; the name is only shown.
struct ArchiveTarget {
    std::string name;
    std::string location;
};

/// What a person has filled in.
struct ArchiveRequest {
    ArchivePeriod period = ArchivePeriod::None;
    std::string year{};
    std::string firstMonth{};  ///< MM/YYYY, as the next
    std::string lastMonth{};
    ArchiveDestination destination = ArchiveDestination::ToFile;
    ArchiveTarget target{};
};

/// The months to choose from, 01/2002 to 12/2020.
std::vector<std::string> ArchiveMonths();

/// The target of a chosen path: a location that does not end in ".SAF"
/// gets that ending, the name is the path's own.
ArchiveTarget TargetOfPath(const std::filesystem::path& chosen);

/// Whether the date of a call is in the period. Months compare as text, their digits
/// first: from 01/2010 to 06/2010 takes 03/2009 as well, from 11/2009 to 02/2010 nothing.
bool IsInPeriod(const ArchiveRequest& request, std::string_view date);

/// What the window shows of an archiving.
class ArchiveView {
public:
    virtual ~ArchiveView() = default;

    virtual void ShowProgress() = 0;
    virtual ArchiveRequest Request() const = 0;

    /// Disables what a person may touch, until ClearInputs.
    virtual void LockInputs() = 0;
    virtual RunProgress& Records() = 0;

    /// Enables the inputs again, emptied and with no period chosen.
    virtual void ClearInputs() = 0;
    virtual void HideProgress() = 0;
    virtual void ResetProgress() = 0;
};

/// Asks whether to archive, and does it. An incomplete request ends it without a message,
/// with the progress shown and the collector service stopped.
///
/// Each call is deleted after its line is in the file or its row is in tblarchive: a run
/// that ends early has deleted no call that is not stored there. Failures of the database,
/// or of the temporary file archive.tmp in the application folder, are thrown, with the
/// collector service stopped. A zip file that cannot be written is not reported, and its
/// calls are lost.
void RunArchive(Application& application, ArchiveView& view);

}  // namespace tallix
