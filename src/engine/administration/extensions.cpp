#include "administration/extensions.h"

#include <string_view>
#include <unordered_set>

#include "database/row_batch.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr char kTrunkMark = 'T';

bool IsListed(std::string_view number) {
    return !Trim(number).empty() && number.front() != kTrunkMark;
}

}  // namespace

std::vector<Extension> LoadExtensions(const Session& session) {
    const ado::Rows rows = DatabaseScope(session.database).Query("select * from tblextensions");
    std::vector<Extension> extensions;
    for (const ado::Row row : rows) {
        extensions.push_back({std::string(row.Text("ExtensionNo")), std::string(row.Text("Name"))});
    }
    return extensions;
}

std::vector<Extension> FindNewExtensions(const Application& application, const std::vector<Extension>& known,
                                         RunProgress& progress) {
    ado::Rows calls;
    application.events.ServeDuring(
        [&] { calls = DatabaseScope(application.session.database).Query("select * from tblphonedata"); });
    // Views: `known` and the rows outlive them.
    std::unordered_set<std::string_view> seen;
    for (const Extension& extension : known) seen.insert(extension.number);
    std::vector<Extension> found;
    const ado::Column column = calls.Find("Extension");
    std::int64_t place = 0;
    for (const ado::Row call : calls) {
        progress.Record(++place, calls.Count());
        const std::string_view number = call.Text(column);
        if (IsListed(number) && seen.insert(number).second) found.push_back({std::string(number), ""});
    }
    return found;
}

void StoreExtensions(const DatabaseScope& database, const std::vector<Extension>& extensions) {
    ado::RowBatch rows(database.Connection(), "tblextensions", {"ExtensionNo", "Name"}, ado::Refusal::Throws);
    for (const Extension& extension : extensions) rows.Add({extension.number, extension.name});
    rows.Flush();
}

}  // namespace tallix
