#include "reporting/row_resolution.h"

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::size_t kShortNumber = 6;     ///< numbers up to this length are local
constexpr std::size_t kInternalNumber = 4;  ///< numbers up to this length have no area
constexpr std::string_view kOutside = "0";  ///< `Internal` of a call over a trunk
constexpr std::string_view kHomeCountry = "GBR";
constexpr std::string_view kVoicemail = "Voicemail";
constexpr std::string_view kNoCost = "0.00";

constexpr KeyLookupNames kNames = {"tblextensions",
                                   "SELECT * FROM tblextensions WHERE ExtensionNo = ", "ExtensionNo", "Name"};
constexpr KeyLookupNames kAddressBook = {"tbladdressbook",
                                         "SELECT * FROM tbladdressbook WHERE Number =", "Number", "Name"};
constexpr KeyLookupNames kStoredCosts = {"tblcostcount",
                                         "SELECT * FROM tblcostcount WHERE DataID = ", "DataID", "Cost"};

// The search for an area begins with two characters, that for a provider with one.
std::size_t FirstPrefix(NumberTable numbers) {
    return numbers == NumberTable::Areas ? 2 : 1;
}

// The column of a cell that shows a field as it stands; absent for any other cell.
ado::Column ColumnOf(Cell cell, const CallColumns& columns) {
    switch (cell) {
        case Cell::Date:
            return columns.date;
        case Cell::Time:
            return columns.time;
        case Cell::Extension:
            return columns.extension;
        case Cell::Duration:
            return columns.duration;
        case Cell::SummedDuration:
            return columns.summedDuration;
        case Cell::NumRings:
            return columns.numRings;
        case Cell::Account:
            return columns.account;
        case Cell::OrigNum:
            return columns.origNum;
        case Cell::Trunk:
            return columns.trunk;
        case Cell::Site:
            return columns.site;
        default:
            return {};
    }
}

// A stored cost as pence: its text without any point.
std::int32_t PenceOf(std::string_view cost) {
    char digits[32];
    std::size_t length = 0;
    for (const char c : cost) {
        if (c != '.' && length < sizeof digits) digits[length++] = c;
    }
    return ToInteger32(std::string_view(digits, length));
}

}  // namespace

RowResolver::RowResolver(const RowContext& context, const CallColumns& columns)
    : context_(context),
      columns_(columns),
      plan_(CellsOf(context.flags, context.settings.numbers)),
      names_(context.session, context.events, kNames),
      addressBook_(context.session, context.events, kAddressBook),
      storedCosts_(context.session, context.events, kStoredCosts),
      areas_(context.session, std::string(NumberTableName(context.settings.numbers)), "Code", "Provider"),
      countries_(context.session, "tblintcodes", "Code", "Country"),
      pricing_(context.tariff, PricingUnit(context.settings.billing)) {}

bool RowResolver::IsDropped(const ado::Recordset& calls) const {
    return context_.dropsShortNumbers && Len(FieldText(calls, columns_.destNum)) == kInternalNumber;
}

const std::vector<std::string_view>& RowResolver::Resolve(const ado::Recordset& calls) {
    cells_.clear();
    for (const Cell cell : plan_) {
        if (Add(cell, calls) == Next::EndOfRow) break;
    }
    return cells_;
}

RowResolver::Next RowResolver::Add(Cell cell, const ado::Recordset& calls) {
    switch (cell) {
        case Cell::Name:
            AddName(calls);
            break;
        case Cell::Forward:
            AddForward(calls);
            break;
        case Cell::DestNum:
            AddDestNum(calls);
            break;
        case Cell::Area:
            return AddArea(calls);
        case Cell::Country:
            AddCountry(calls);
            break;
        case Cell::Cost:
            AddCost(calls);
            break;
        default:
            AddField(FieldText(calls, ColumnOf(cell, columns_)));
            break;
    }
    return Next::Cell;
}

void RowResolver::AddName(const ado::Recordset& calls) {
    cells_.push_back(names_.Find(FieldText(calls, columns_.extension)).value_or(kBlankCell));
}

// A flag that is no number fails the test for 0 and so reads as "No".
void RowResolver::AddForward(const ado::Recordset& calls) {
    const std::string_view flag = FieldText(calls, columns_.forward);
    const bool isZero = flag == "0" || flag.empty() || TestOrEnter([&] { return ToInteger32(flag) == 0; });
    cells_.push_back(isZero ? "No" : "Yes");
}

// A call whose `Internal` the statement did not return counts as one over a trunk.
bool RowResolver::IsOutside(const ado::Recordset& calls) const {
    return !columns_.internal || calls.Text(columns_.internal) == kOutside;
}

// A local number is shown with the site's dialling code, as it would be dialled from
// anywhere else. The length is tested first: a count of numbers, which has no `Internal`,
// shows long numbers as they are.
void RowResolver::AddDestNum(const ado::Recordset& calls) {
    const std::string_view number = FieldText(calls, columns_.destNum);
    const bool isLocal = !number.empty() && Len(number) <= kShortNumber && IsOutside(calls);
    if (!isLocal || !context_.settings.areaCode) return AddField(number);
    number_.assign(context_.site.areaCode);
    number_ += number;
    cells_.push_back(number_);
}

RowResolver::Next RowResolver::AddArea(const ado::Recordset& calls) {
    const std::string_view destNum = FieldText(calls, columns_.destNum);
    const bool ofDestNum = context_.flags[DataKey::DestNum];
    const std::string_view number = ofDestNum ? destNum : FieldText(calls, columns_.origNum);
    const std::size_t length = Len(Trim(number));
    if (length <= kInternalNumber) {
        cells_.push_back(kBlankCell);
        return Next::Cell;
    }
    if (length == kShortNumber) {
        cells_.push_back(context_.site.areaName);
        return Next::Cell;
    }
    if (const auto known = addressBook_.Find(number)) {
        cells_.push_back(*known);
        return Next::EndOfRow;
    }
    cells_.push_back(AreaName(number, destNum));
    return Next::Cell;
}

std::string_view RowResolver::AreaName(std::string_view number, std::string_view destNum) {
    const PrefixLengths lengths{.first = FirstPrefix(context_.settings.numbers), .last = Len(number)};
    if (const auto name = areas_.Narrow(number, lengths)) return *name;
    return destNum == context_.site.voicemail ? kVoicemail : kBlankCell;
}

void RowResolver::AddCountry(const ado::Recordset& calls) {
    const std::string_view number = FieldText(calls, columns_.destNum);
    if (number.empty()) return cells_.push_back(kBlankCell);
    if (number.front() == '0' || Len(number) <= kShortNumber) return cells_.push_back(kHomeCountry);
    AddField(countries_.Narrow(number, {.first = 1, .last = Len(number)}).value_or(""));
}

// An internal call's row is one cell short.
void RowResolver::AddCost(const ado::Recordset& calls) {
    if (!IsOutside(calls)) return;
    if (context_.settings.storedCosts) {
        AddStoredCost(calls);
    } else {
        AddPricedCost(calls);
    }
}

void RowResolver::AddStoredCost(const ado::Recordset& calls) {
    const auto cost = storedCosts_.Find(FieldText(calls, columns_.id));
    if (!cost) return AddAmount(kNoCost, 0);
    std::int32_t pence = 0;
    Attempt([&] { pence = PenceOf(*cost); });
    AddAmount(*cost, pence);
}

// Without a duration to look at, a call counts as one that never was.
void RowResolver::AddPricedCost(const ado::Recordset& calls) {
    const std::string_view duration = FieldText(calls, columns_.duration);
    if (!columns_.duration || duration == kNoDuration) return AddAmount(kNoCost, 0);
    const CallPricing::Price price = pricing_.Of(duration, FieldText(calls, columns_.destNum));
    AddAmount(price.text, price.pence);
}

void RowResolver::AddAmount(std::string_view text, std::int32_t pence) {
    cost_.assign(context_.currency);
    cost_ += text;
    cells_.push_back(cost_);
    AddToTotal(pence);
}

// A sum that no longer fits is a failing statement: the total keeps what it had.
void RowResolver::AddToTotal(std::int32_t pence) {
    const std::int64_t sum = std::int64_t{totalPence_} + pence;
    if (sum == static_cast<std::int32_t>(sum)) totalPence_ = static_cast<std::int32_t>(sum);
}

}  // namespace tallix
