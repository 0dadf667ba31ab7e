// Creates the tables and indexes that a database lacks. Their statements are in one file per
// server, in the folder "schema" of the installation.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"

namespace tallix {

/// Runs the statements of the connected server's file in `schemaFolder`. Tables that are
/// there are left as they are, rows included. Returns the names of the tables made.
/// Throws DatabaseError when the file cannot be read or the server refuses a statement;
/// what was made before that stays.
std::vector<std::string> LayDownSchema(ado::Connection& connection,
                                       const std::filesystem::path& schemaFolder);

/// The statements of a schema file: paragraphs, with blank lines between them, of which
/// lines that begin with "--" are comments.
std::vector<std::string> SchemaStatements(std::string_view text);

}  // namespace tallix
