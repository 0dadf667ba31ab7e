#include "setup/reference_data.h"

#include <fmt/format.h>

#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "setup/setup_error.h"
#include "setup/table_rows.h"
#include "text/code_page.h"

namespace tallix {
namespace {

struct ReferenceTable {
    std::string table;
    std::string file;
    std::string nameColumn;
};

const std::vector<ReferenceTable>& ReferenceTables() {
    static const std::vector<ReferenceTable> tables = {
        {"tblareaproviders", "areaproviders.csv", "Area"},
        {"tblcommproviders", "commproviders.csv", "Provider"},
        {"tblintcodes", "intcodes.csv", "Country"},
    };
    return tables;
}

// A line is CODE,NAME with no quoting: further commas belong to the name.
std::vector<std::string> ReadRow(std::string line, const std::string& file) {
    if (line.ends_with('\r')) line.pop_back();
    const std::size_t comma = line.find(',');
    if (comma == 0 || comma == std::string::npos) {
        throw SetupError(fmt::format("{} has a line that is not a code and a name: {}", file, line));
    }
    return {line.substr(0, comma), DecodeLine(std::string_view(line).substr(comma + 1))};
}

TableRows ReadTable(const ReferenceTable& reference, const std::filesystem::path& folder) {
    const std::string path = (folder / reference.file).string();
    std::ifstream stream(path);
    std::string line;
    if (!std::getline(stream, line)) throw SetupError(fmt::format("reference data cannot be read: {}", path));
    TableRows rows{reference.table, {"Code", reference.nameColumn}, {}};
    while (std::getline(stream, line)) {
        rows.rows.push_back(ReadRow(line, path));
    }
    return rows;
}

}  // namespace

void FillReferenceData(ado::Connection& connection, const std::filesystem::path& folder, std::ostream& out) {
    for (const ReferenceTable& reference : ReferenceTables()) {
        const std::int64_t there = CountRows(connection, reference.table);
        if (there > 0) {
            out << fmt::format("{}: {} rows there already\n", reference.table, there);
            continue;
        }
        const TableRows rows = ReadTable(reference, folder);
        Transaction transaction(connection);
        AddRows(connection, rows);
        transaction.Commit();
        out << fmt::format("{}: {} rows added\n", reference.table, rows.rows.size());
    }
}

}  // namespace tallix
