// A schedule from end to end: saved as the window saves it, kept in the user's real crontab,
// started by the real cron, run by the built program with no display, delivered to a folder
// and to a mail server. The user's crontab is restored afterwards.
#include <gmock/gmock.h>

#include <iostream>
#include <regex>
#include <thread>

#include "backup/backup_task.h"
#include "platform/child_process.h"
#include "programs/setup/setup_installation.h"
#include "scheduling/schedules.h"
#include "support/end_guard.h"
#include "support/places.h"

namespace tallix {
namespace {

using namespace std::chrono_literals;
using std::chrono::system_clock;
using ::testing::HasSubstr;

constexpr const char* kForeign = "# somebody's own\r\nX=100%\n#\n";

/// Puts the user's crontab back when this process ends.
class CrontabKeeper {
private:
    const ChildResult before_ = RunChild({"env", "VISUAL=cat", "crontab", "-e"});
    const bool isEmpty_ = RunChild({"crontab", "-l"}).status != 0;
    const test::TempFolder folder_;
    const std::string saved_ = folder_.Write("saved", before_.out);
    const test::EndGuard guard_{isEmpty_ ? "crontab -r" : "crontab " + saved_};
};

class ScheduleChain : public testing::Test, protected test::InstalledCompany {
protected:
    ScheduleChain() {
        std::filesystem::create_symlink(test::ReportsProgram(), Home() / "Tallix_Reports");
        settings.Write("SMTPAuth", "0");
        for (const auto& [name, value] : Environment()) setenv(name.c_str(), value.c_str(), 1);
        RunChild({"crontab", "-"}, kForeign);
    }
    ~ScheduleChain() override {
        for (const auto& [name, value] : Environment()) unsetenv(name.c_str());
    }

    /// Makes every task run at the next minute.
    static void LetAllRunNow() {
        const std::string text = RunChild({"env", "VISUAL=cat", "crontab", "-e"}).out;
        RunChild({"crontab", "-"},
                 std::regex_replace(text, std::regex("\n\\d+ \\d+ \\* \\* \\* "), "\n* * * * * "));
    }

    std::string Delivered() const {
        for (const auto& entry : std::filesystem::directory_iterator(Home() / "out")) {
            return test::ReadBytes(entry.path());
        }
        return {};
    }

    static std::string WithoutMoment(const std::string& report) {
        return std::regex_replace(report, std::regex("Generated On: [^\r\n]*"), "");
    }

    CrontabKeeper keeper_;
    test::FixedClock clock_;
    NoEvents events_;
    Application application_{Home(), Home() / "temp", {}, settings, prompts, clock_, events_};
};

TEST_F(ScheduleChain, ReachesTheFolderAndTheMailboxWithinItsMinute) {
    const test::SmtpServer server;
    PointMailTo(server);
    const std::string awkward = "It's 50% #1 $(touch injected) `id`;&| <x>";
    const std::string folder = (Home() / "out").string() + "\\";
    SaveSchedule(application_, {awkward, "All Calls", "Daily", Delivery::ToFolder, folder, {}},
                 SaveMode::New);
    SaveSchedule(application_, {"By mail", "All Calls", "Daily", Delivery::ByMail, "", {}}, SaveMode::New);
    CreateBackupTask(application_);
    LetAllRunNow();
    // Ends at once where the machine has a cron already.
    const test::RunningProgram cron("/usr/sbin/cron -f");
    const auto complete = [&] {
        return !server.Mails().empty() && !Delivered().empty() &&
               test::ReadBytes(Home() / "Automated_Backup.sbk").find("INSERT INTO tblusers(") !=
                   std::string::npos;
    };
    std::chrono::duration<double> arrived{};
    for (int i = 0; i < 1500 && !complete(); ++i) {
        std::this_thread::sleep_for(100ms);
        const auto sinceMinute = system_clock::now().time_since_epoch() % 60s;
        if (arrived == 0s && !server.Mails().empty()) arrived = sinceMinute;
    }
    for (const char* name : {"By mail", awkward.c_str()}) DeleteSchedule(application_, name);
    DeleteBackupTask(application_);
    EXPECT_EQ(RunChild({"env", "VISUAL=cat", "crontab", "-e"}).out, kForeign);

    ASSERT_TRUE(complete());
    std::cout << "From the minute of the task to the arrived mail: " << arrived.count() << " s" << std::endl;
    ASSERT_EQ(server.Mails()[0].attachments.size(), 1u);
    const std::string attached = server.Mails()[0].attachments[0].second;
    EXPECT_THAT(attached, HasSubstr("Total Number Of Records: 500"));
    EXPECT_EQ(WithoutMoment(attached), WithoutMoment(Delivered()));
}

}  // namespace
}  // namespace tallix
