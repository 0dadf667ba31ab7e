#include "reporting/column_choice.h"

namespace tallix {

namespace {

bool IsShown(std::size_t place, const ReportFlags& flags, NumberTable numbers) {
    const bool byMode = kReportColumns[place].preset.shownBy == ShownBy::ProviderMode;
    return byMode ? numbers == NumberTable::Providers && !flags.Internal() : flags.Shows(place);
}

bool HasSecondLabel(SecondLabel when, const ReportFlags& flags, NumberTable numbers) {
    switch (when) {
        case SecondLabel::WithBothNumbers:
            return flags.Shows(kDestNumColumn) && flags.Shows(kOrigNumColumn);
        case SecondLabel::InAreaMode:
            return numbers == NumberTable::Areas;
        case SecondLabel::Never:
            break;
    }
    return false;
}

}  // namespace

std::vector<const ReportColumn*> ColumnsOf(const ReportFlags& flags, NumberTable numbers) {
    std::vector<const ReportColumn*> columns;
    for (std::size_t place = 0; place < kReportColumns.size(); ++place) {
        if (IsShown(place, flags, numbers)) columns.push_back(&kReportColumns[place]);
    }
    return columns;
}

std::vector<std::string_view> HeadsOf(const ReportFlags& flags, NumberTable numbers) {
    std::vector<std::string_view> heads;
    for (const ReportColumn* column : ColumnsOf(flags, numbers)) {
        const PresetColumn& preset = column->preset;
        const bool second = HasSecondLabel(preset.when, flags, numbers);
        heads.push_back(second ? preset.secondLabel : preset.label);
    }
    return heads;
}

}  // namespace tallix
