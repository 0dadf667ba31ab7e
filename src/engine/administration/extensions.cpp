#include "administration/extensions.h"

#include <string_view>
#include <unordered_set>

#include "database/recordset.h"
#include "database/row_batch.h"
#include "session/database.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr char kTrunkMark = 'T';

bool IsListed(std::string_view number) {
    return !Trim(number).empty() && number.front() != kTrunkMark;
}

}  // namespace

std::vector<Extension> LoadExtensions(Session& session) {
    OpenDatabase(session);
    ado::Recordset rows;
    rows.Open("select * from tblextensions", OpenConnection(session));
    std::vector<Extension> extensions;
    for (std::int64_t i = 1; i <= rows.RecordCount(); ++i, rows.MoveNext()) {
        extensions.push_back({std::string(rows.Text("ExtensionNo")), std::string(rows.Text("Name"))});
    }
    CloseDatabase(session);
    return extensions;
}

std::vector<Extension> FindNewExtensions(Application& application, const std::vector<Extension>& known,
                                         RunProgress& progress) {
    Session& session = application.session;
    ado::Recordset calls;
    application.events.ServeDuring([&] {
        OpenDatabase(session);
        calls.Open("select * from tblphonedata", OpenConnection(session));
    });
    // Views: `known` and the rows of the set outlive them.
    std::unordered_set<std::string_view> seen;
    for (const Extension& extension : known) seen.insert(extension.number);
    std::vector<Extension> found;
    const ado::Column column = calls.Find("Extension");
    for (std::int64_t i = 1; i <= calls.RecordCount(); ++i, calls.MoveNext()) {
        progress.Record(i, calls.RecordCount());
        const std::string_view number = calls.Text(column);
        if (IsListed(number) && seen.insert(number).second) found.push_back({std::string(number), ""});
    }
    CloseDatabase(session);
    return found;
}

void StoreExtensions(Session& session, const std::vector<Extension>& extensions) {
    ado::RowBatch rows(OpenConnection(session), "tblextensions", {"ExtensionNo", "Name"},
                       ado::Refusal::Throws);
    for (const Extension& extension : extensions) rows.Add({extension.number, extension.name});
    rows.Flush();
}

}  // namespace tallix
