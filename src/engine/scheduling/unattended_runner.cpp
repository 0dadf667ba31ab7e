#include "scheduling/unattended_runner.h"

#include <fmt/format.h>

#include <system_error>

#include "failures/attempt.h"
#include "platform/file_lock.h"
#include "platform/move_file.h"
#include "platform/paths.h"
#include "reporting/report_run.h"
#include "scheduling/mail.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kUserOfSchedules = "Scheduled Report";
constexpr std::string_view kBody =
    "This email was sent from the Tallix Call Accounting System. Attached is a CSV file containing the "
    "report data.";

RunDescription Describe(const Application& application, ReportFlags& flags, const ScheduledReport& schedule) {
    const std::filesystem::path reportFile =
        application.folder.string() + "/Reports/" + ToNativePath(schedule.report).string();
    return {.reportName = ReportNameOf(reportFile.filename().string()),
            .kind = UnattendedRun{.flags = flags,
                                  .reportFile = reportFile,
                                  .inputs = {.extension = schedule.extension,
                                             .account = schedule.account,
                                             .site = schedule.site,
                                             .timeFrom = schedule.timeStart,
                                             .timeTo = schedule.timeFinish}}};
}

// Day, month and year of the run without the time: a folder holds one result per day.
std::string DayText(const Application& application) {
    const std::string date = ShortDate(application.clock.Now());
    return fmt::format("{}_{}_{}", Left(date, 2), Mid(date, 4, 2), Right(date, 4));
}

MailServer ReadMailServer(const SettingsStore& settings) {
    MailServer server;
    server.host = settings.Read("SMTPServer");
    server.port = 0;
    Attempt([&] { server.port = ToInteger16(settings.Read("SMTPPort")); });
    server.authenticate = settings.Read("SMTPAuth") != "0";
    server.ssl = settings.Read("SMTPSSL") == "1";
    if (server.authenticate) {
        server.user = settings.Read("SMTPUser");
        server.password = settings.Read("SMTPPass");
    }
    return server;
}

void DeliverByMail(const Application& application, const std::string& recipient) {
    const std::string day = DayText(application);
    const std::filesystem::path attachment = application.folder / (day + ".csv");
    MoveWithoutReplacing(PageFile(application), attachment);
    const Mail mail = {.from = application.settings.Read("SMTPEmail"),
                       .to = recipient,
                       .subject = "Tallix Scheduled Report - " + day,
                       .body = std::string(kBody),
                       .attachments = {attachment}};
    SendMail(mail, ReadMailServer(application.settings));
    std::error_code ignored;
    std::filesystem::remove(attachment, ignored);
}

}  // namespace

void RunScheduledReport(Application& application, ReportFlags& flags, const ScheduledReport& schedule) {
    const FileLock turn(Beside(PageFile(application), ".turn"));
    application.session.CurrentUser = kUserOfSchedules;
    NoProgress nobody;
    ReportRun run(application, nobody);
    run.Make(Describe(application, flags, schedule));
    if (schedule.DeliversToFile()) {
        const std::string target = schedule.outputLocation + DayText(application) + ".csv";
        MoveWithoutReplacing(PageFile(application), ToNativePath(target));
    } else {
        DeliverByMail(application, run.FirstSite().email);
    }
}

}  // namespace tallix
