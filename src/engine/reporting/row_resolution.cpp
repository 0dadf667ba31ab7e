#include "reporting/row_resolution.h"

#include "failures/attempt.h"
#include "reporting/column_choice.h"
#include "reporting/field_text.h"
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

RowResolver::RowResolver(const RowContext& context, const ado::Rows& calls)
    : context_(context),
      steps_(StepsOf(context, calls)),
      destNum_(calls.Find("DestNum")),
      origNum_(calls.Find("OrigNum")),
      internal_(calls.Find("Internal")),
      duration_(calls.Find("Duration")),
      names_(context.database, context.events, kNames),
      addressBook_(context.database, context.events, kAddressBook),
      storedCosts_(context.database, context.events, kStoredCosts),
      areas_(context.database, std::string(NumberTableName(context.settings.numbers)), "Code", "Provider"),
      countries_(context.database, "tblintcodes", "Code", "Country"),
      pricing_(context.tariff, PricingUnit(context.settings.billing)) {}

std::vector<RowResolver::Step> RowResolver::StepsOf(const RowContext& context, const ado::Rows& calls) {
    std::vector<Step> steps;
    for (const ReportColumn* column : ColumnsOf(context.flags, context.settings.numbers)) {
        const bool summed = context.flags.Sum() && !column->preset.summed.empty();
        steps.push_back({column->preset.cell, calls.Find(summed ? column->preset.summed : column->source)});
    }
    return steps;
}

bool RowResolver::IsDropped(ado::Row call) const {
    return context_.dropsShortNumbers && Len(FieldText(call, destNum_)) == kInternalNumber;
}

const std::vector<std::string_view>& RowResolver::Resolve(ado::Row call) {
    cells_.clear();
    for (const Step& step : steps_) {
        if (Add(step, call) == Next::EndOfRow) break;
    }
    return cells_;
}

RowResolver::Next RowResolver::Add(const Step& step, ado::Row call) {
    const std::string_view text = FieldText(call, step.source);
    switch (step.cell) {
        case PresetCell::Field:
            AddField(text);
            break;
        case PresetCell::Name:
            AddName(text);
            break;
        case PresetCell::Forward:
            AddForward(text);
            break;
        case PresetCell::Number:
            AddNumber(text, call);
            break;
        case PresetCell::Area:
            return AddArea(call);
        case PresetCell::Country:
            AddCountry(text);
            break;
        case PresetCell::Cost:
            AddCost(text, call);
            break;
    }
    return Next::Cell;
}

void RowResolver::AddName(std::string_view extension) {
    cells_.push_back(names_.Find(extension).value_or(kBlankCell));
}

// A flag that is not a number fails the test for 0 and so reads as "No".
void RowResolver::AddForward(std::string_view flag) {
    const bool isZero = flag == "0" || flag.empty() || TestOrEnter([&] { return ToInteger32(flag) == 0; });
    cells_.push_back(isZero ? "No" : "Yes");
}

// A call whose `Internal` the statement did not return counts as one over a trunk.
bool RowResolver::IsOutside(ado::Row call) const {
    return !internal_ || call.Text(internal_) == kOutside;
}

// A local number is shown with the site's dialling code, as it would be dialled from
// anywhere else. The length is tested first: a count of numbers, which has no `Internal`,
// shows long numbers as they are.
void RowResolver::AddNumber(std::string_view number, ado::Row call) {
    const bool isLocal = !number.empty() && Len(number) <= kShortNumber && IsOutside(call);
    if (!isLocal || !context_.settings.areaCode) return AddField(number);
    number_.assign(context_.site.areaCode);
    number_ += number;
    cells_.push_back(number_);
}

RowResolver::Next RowResolver::AddArea(ado::Row call) {
    const std::string_view destNum = FieldText(call, destNum_);
    const bool ofDestNum = context_.flags.Shows(kDestNumColumn);
    const std::string_view number = ofDestNum ? destNum : FieldText(call, origNum_);
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

void RowResolver::AddCountry(std::string_view number) {
    if (number.empty()) return cells_.push_back(kBlankCell);
    if (number.front() == '0' || Len(number) <= kShortNumber) return cells_.push_back(kHomeCountry);
    AddField(countries_.Narrow(number, {.first = 1, .last = Len(number)}).value_or(""));
}

// An internal call's row is one cell short.
void RowResolver::AddCost(std::string_view id, ado::Row call) {
    if (!IsOutside(call)) return;
    if (context_.settings.storedCosts) {
        AddStoredCost(id);
    } else {
        AddPricedCost(call);
    }
}

void RowResolver::AddStoredCost(std::string_view id) {
    const auto cost = storedCosts_.Find(id);
    if (!cost) return AddAmount(kNoCost, 0);
    std::int32_t pence = 0;
    Attempt([&] { pence = PenceOf(*cost); });
    AddAmount(*cost, pence);
}

// A call whose duration the statement did not return costs nothing.
void RowResolver::AddPricedCost(ado::Row call) {
    const std::string_view duration = FieldText(call, duration_);
    if (!duration_ || duration == kNoDuration) return AddAmount(kNoCost, 0);
    const CallPricing::Price price = pricing_.Of(duration, FieldText(call, destNum_));
    AddAmount(price.text, price.pence);
}

void RowResolver::AddAmount(std::string_view text, std::int32_t pence) {
    cost_.assign(context_.currency);
    cost_ += text;
    cells_.push_back(cost_);
    AddToTotal(pence);
}

// A sum that does not fit leaves the total as it was.
void RowResolver::AddToTotal(std::int32_t pence) {
    const std::int64_t sum = std::int64_t{totalPence_} + pence;
    if (sum == static_cast<std::int32_t>(sum)) totalPence_ = static_cast<std::int32_t>(sum);
}

}  // namespace tallix
