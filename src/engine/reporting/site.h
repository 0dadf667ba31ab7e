// The first site of the table: whose address heads the page, whose dialling code and
// voicemail number the rows use.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reporting/report_settings.h"
#include "session/session.h"

namespace tallix {

/// The cell of what has no text of its own, so that table borders are drawn round it.
inline constexpr std::string_view kBlankCell = "&nbsp;";

struct Site {
    std::optional<std::string> name;        ///< nothing without a site
    std::vector<std::string> addressLines;  ///< below the name
    std::string email;
    std::string voicemail;
    std::string areaCode;              ///< as stored, whatever the setting `AreaCode`
    std::string areaName{kBlankCell};  ///< name of the site's own area
    bool isMitel5000 = false;
};

/// Reads the site over the session's open connection. What cannot be read stays empty.
Site ReadFirstSite(Session& session, NumberTable numbers);

/// The table that names numbers.
std::string_view NumberTableName(NumberTable numbers);

}  // namespace tallix
