// The restorable dump: a plain text of INSERT statements, one a line, for six core
// tables. The backup window and the unattended dump write it, Restore reads it.
//
// Values stand between apostrophes whatever the server, NULL as nothing between them,
// and nothing is escaped: a value with an apostrophe or a line break damages its line.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "database/recordset.h"
#include "host/event_queue.h"
#include "platform/buffered_file.h"
#include "session/session.h"

namespace tallix {

/// Which choice of a person a table belongs to.
enum class BackupGroup { ProcessedCalls, RawCalls, SystemOptions };

/// A table of the dump. The columns stand in the line in this order.
struct BackupTable {
    BackupGroup group;
    std::string_view name;
    std::vector<std::string_view> columns;
    std::string_view cutColumn{};  ///< loses its last three characters on the way out; empty for none

    std::string Query() const;

    /// The line up to and including the opening bracket of its values.
    std::string LinePrefix() const;
};

/// The six tables in the order of the file.
const std::array<BackupTable, 6>& BackupTables();

/// The characters that a raw line of the telephone exchange loses in the dump.
inline constexpr std::size_t kCutFromRawLines = 3;

/// Writes the lines of a dump.
class BackupWriter {
public:
    /// Replaces the file. Throws std::runtime_error when it cannot be made. A writer that
    /// goes without Close leaves every line that was complete. `events` are served while
    /// a table is fetched.
    BackupWriter(const std::filesystem::path& file, EventQueue& events);

    /// Called with the row about to be written, from 1, and the number of rows.
    using RowProgress = std::function<void(std::int64_t row, std::int64_t rows)>;

    /// Writes every row of a table over the session's open connection. Throws
    /// DatabaseError, ConversionError for a raw line of less than three characters, and
    /// std::runtime_error when the file takes no more.
    void WriteTable(Session& session, const BackupTable& table, const RowProgress& progress = {});

    /// Writes what is waiting and closes. Throws std::runtime_error when that fails.
    void Close();

private:
    void WriteLine(const std::string& prefix, const ado::Recordset& rows,
                   const std::vector<ado::Column>& columns, std::size_t cutPlace);
    void RequireComplete() const;

    std::filesystem::path path_;
    BufferedFile file_;
    EventQueue& events_;
};

}  // namespace tallix
