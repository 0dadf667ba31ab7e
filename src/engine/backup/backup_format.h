// The restorable dump: a plain text of INSERT statements, one per line, for six core
// tables. The backup window and the unattended dump write it, the restore reads it.
//
// Values are quoted with apostrophes on every server, NULL is an empty pair of them, and
// nothing is escaped: a value with an apostrophe or a line break damages its line.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_scope.h"
#include "host/event_queue.h"
#include "platform/buffered_file.h"

namespace tallix {

/// Which choice of a person a table belongs to.
enum class BackupGroup { ProcessedCalls, RawCalls, SystemOptions };

/// A table of the dump. Its lines have the columns in this order.
struct BackupTable {
    BackupGroup group;
    std::string_view name;
    std::vector<std::string_view> columns;
    std::string_view cutColumn{};  ///< written without its last three characters; empty for none

    std::string Query() const;

    /// The line up to and including the opening bracket of its values.
    std::string LinePrefix() const;
};

/// The six tables in the order of the file.
const std::array<BackupTable, 6>& BackupTables();

/// The characters that the dump cuts from the end of a raw line.
inline constexpr std::size_t kCutFromRawLines = 3;

/// Writes the lines of a dump.
class BackupWriter {
public:
    /// Replaces the file. Throws std::runtime_error when it cannot be created. Without Close
    /// the file keeps every complete line. `events` are served while a table is fetched.
    BackupWriter(const std::filesystem::path& file, EventQueue& events);

    /// Called with the row about to be written, from 1, and the number of rows.
    using RowProgress = std::function<void(std::int64_t row, std::int64_t rows)>;

    /// Writes every row of a table. Throws DatabaseError, ConversionError for a raw line of
    /// less than three characters, and std::runtime_error when the file cannot be written.
    void WriteTable(const DatabaseScope& database, const BackupTable& table,
                    const RowProgress& progress = {});

    /// Writes what is waiting and closes. Throws std::runtime_error when that fails.
    void Close();

private:
    void WriteLine(const std::string& prefix, const ado::Row& row, const std::vector<ado::Column>& columns,
                   std::size_t cutPlace);
    void RequireComplete() const;

    std::filesystem::path path_;
    BufferedFile file_;
    EventQueue& events_;
};

}  // namespace tallix
