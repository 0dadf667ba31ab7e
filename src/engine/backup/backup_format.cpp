#include "backup/backup_format.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>

#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

[[noreturn]] void ThrowFileError(const std::filesystem::path& path) {
    throw std::runtime_error(
        fmt::format("{} cannot be written: {}", path.string(), std::generic_category().message(errno)));
}

std::string_view WithoutTail(ado::Value value) {
    if (!value) throw ConversionError("A raw line is NULL and cannot be cut");
    const std::size_t length = Len(*value);
    if (length < kCutFromRawLines) throw ConversionError("A raw line is too short to be cut");
    return Left(*value, length - kCutFromRawLines);
}

void AppendValues(std::string& line, const ado::Row& row, const std::vector<ado::Column>& columns,
                  std::size_t cutPlace) {
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const ado::Value value = row.At(columns[place]);
        line += '\'';
        line += place == cutPlace ? WithoutTail(value) : value.value_or("");
        line += "',";
    }
    line.back() = ')';
    line += kLineEnd;
}

std::vector<ado::Column> FindColumns(const ado::Rows& rows, const BackupTable& table) {
    std::vector<ado::Column> columns;
    for (const std::string_view name : table.columns) columns.push_back(rows.Find(name));
    return columns;
}

}  // namespace

const std::array<BackupTable, 6>& BackupTables() {
    static const std::array<BackupTable, 6> tables = {{
        {BackupGroup::ProcessedCalls,
         "tblphonedata",
         {"Date", "Time", "Duration", "Extension", "NumRings", "OrigNum", "DestNum", "Internal", "Error",
          "Supervision", "Speedcall", "Forward", "Trunk", "Account", "Site"}},
        {BackupGroup::RawCalls, "tblrawdata", {"Data", "SiteID"}, "Data"},
        {BackupGroup::SystemOptions, "tblextensions", {"ExtensionNo", "Name"}},
        {BackupGroup::SystemOptions,
         "tblphonesystem",
         {"SystemID", "Manafacturer", "Model", "IP", "Port", "Username", "Password", "VMNumber"}},
        {BackupGroup::SystemOptions,
         "tblsite",
         {"ID", "Name", "Email", "Addy1", "Addy2", "Addy3", "Addy4", "Postcode", "Area", "VM", "SwitchIP",
          "SwitchPort", "SwitchMapping", "SystemCode"}},
        {BackupGroup::SystemOptions,
         "tblusers",
         {"UserID", "Username", "Password", "Email", "AccessType", "GroupID"}},
    }};
    return tables;
}

std::string BackupTable::Query() const {
    return "select * from " + std::string(name);
}

std::string BackupTable::LinePrefix() const {
    return fmt::format("INSERT INTO {}({}) VALUES (", name, fmt::join(columns, ","));
}

BackupWriter::BackupWriter(const std::filesystem::path& file, EventQueue& events)
    : path_(file), file_(file), events_(events) {
    RequireComplete();
}

void BackupWriter::WriteTable(const DatabaseScope& database, const BackupTable& table,
                              const RowProgress& progress) {
    ado::Rows rows;
    events_.ServeDuring([&] { rows = database.Query(table.Query()); });
    const std::string prefix = table.LinePrefix();
    const std::vector<ado::Column> columns = FindColumns(rows, table);
    const auto cut = std::find(table.columns.begin(), table.columns.end(), table.cutColumn);
    const auto cutPlace = static_cast<std::size_t>(cut - table.columns.begin());
    std::int64_t number = 0;
    for (const ado::Row row : rows) {
        if (progress) progress(++number, rows.Count());
        WriteLine(prefix, row, columns, cutPlace);
    }
}

void BackupWriter::WriteLine(const std::string& prefix, const ado::Row& row,
                             const std::vector<ado::Column>& columns, std::size_t cutPlace) {
    std::string& line = file_.Waiting();
    const std::size_t begin = line.size();
    try {
        AppendValues(line.append(prefix), row, columns, cutPlace);
    } catch (...) {
        line.resize(begin);
        throw;
    }
    file_.Advance();
    RequireComplete();
}

void BackupWriter::RequireComplete() const {
    if (!file_.IsComplete()) ThrowFileError(path_);
}

void BackupWriter::Close() {
    file_.Close();
    RequireComplete();
}

}  // namespace tallix
