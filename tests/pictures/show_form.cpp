// Shows one window by its form name on the database that is set up, for windows to which
// no way leads in the program: show_form Form18
#include <iostream>

#include "foundation/access_rights.h"
#include "platform/paths.h"
#include "shell/windows.h"
#include "ui/guarded_application.h"
#include "ui/message_prompts.h"
#include "ui/qt_events.h"
#include "ui/style.h"

namespace tallix {
namespace {

Session SessionOfAdministrator(const SettingsStore& settings) {
    Session session;
    session.DBType = settings.Read("DBType");
    session.DBIP = settings.Read("DBIP");
    session.CurrentUser = "Administrator";
    session.CurrentAccess = std::string(kRights, '1');
    session.UseStatsMain = true;
    return session;
}

int ShowForm(const char* name) {
    ui::MessagePrompts prompts;
    SettingsStore settings(MachineSettingsFolder(), UserSettingsFolder(), prompts);
    SystemClock clock;
    ui::QtEvents events;
    Application application{ApplicationFolder(),
                            TempFolder(),
                            ProgramVersion(),
                            settings,
                            prompts,
                            clock,
                            events,
                            SessionOfAdministrator(settings)};
    ui::Printers printers;
    ui::Forms forms;
    ReportFlags flags;
    RegisterWindows(forms, application, flags, printers);
    forms.Show(name);
    return QApplication::exec();
}

}  // namespace
}  // namespace tallix

int main(int argumentCount, char** arguments) {
    tallix::ui::GuardedApplication toolkit(argumentCount, arguments, [](const std::exception& failure) {
        std::cerr << failure.what() << std::endl;
    });
    tallix::ui::ApplyStyle(toolkit);
    return argumentCount == 2 ? tallix::ShowForm(arguments[1]) : EXIT_FAILURE;
}
