// Statements are written once for all servers. What a server would refuse, or take in
// another sense than the rest, is turned into its own form here, word by word, never by
// replacing text.
//
// The common sense of a statement, whichever server runs it:
// - "..." and '...' are literals; a doubled delimiter means one, a backslash means
//   itself. Only a word in apostrophes on the left of a comparison is a column.
// - Text compares byte by byte, case and trailing blanks included, where the tables have
//   the collation of our schema; LIKE has % and _ and no escape character.
// - A text column beside a bare number counts as the number that it begins with, 0 where
//   it begins with none.
// - NULL sorts before everything.
// - Calls that the statement leaves in no order, or in the same place of one, come in
//   the order of their numbers, and groups in the order of what they are grouped by, so
//   that a report is the same wherever it runs.
#pragma once

#include <string>
#include <string_view>

#include "database/connection_text.h"

namespace tallix::ado {

/// The statement as `server` takes it. A literal that is not closed is left as it is,
/// so that the server refuses it. Statements other than SELECT, INSERT, UPDATE and
/// DELETE (the schema's) are the server's own and pass unchanged. Throws DatabaseError
/// where a second statement follows the first.
std::string Translate(std::string_view statement, Server server);

}  // namespace tallix::ado
