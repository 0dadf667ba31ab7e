#include "reporting/report_content.h"

#include "reporting/custom_content.h"
#include "reporting/keyed_content.h"

namespace tallix {

namespace {

// One overload per alternative of RunKind.
struct ContentMaker {
    std::unique_ptr<ReportContent> operator()(const PresetRun& run) const {
        return std::make_unique<PresetContent>(application, progress, run);
    }
    std::unique_ptr<ReportContent> operator()(const UnattendedRun& run) const {
        return std::make_unique<UnattendedContent>(application, progress, run);
    }
    std::unique_ptr<ReportContent> operator()(const CustomRun& run) const {
        return std::make_unique<CustomContent>(application, progress, run.report);
    }

    Application& application;
    RunProgress& progress;
};

}  // namespace

std::unique_ptr<ReportContent> MakeContent(const RunDescription& run, Application& application,
                                           RunProgress& progress) {
    return std::visit(ContentMaker{application, progress}, run.kind);
}

}  // namespace tallix
