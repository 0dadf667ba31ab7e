// Shows one window by its form name on the database that is set up, for windows to which
// no way leads in the program: show_form Form18
#include <iostream>

#include "platform/paths.h"
#include "session/access_rights.h"
#include "toolkit/guarded_application.h"
#include "toolkit/message_prompts.h"
#include "toolkit/qt_events.h"
#include "toolkit/style.h"
#include "windows/window_registry.h"

namespace tallix {
namespace {

int ShowForm(const char* name) {
    toolkit::MessagePrompts prompts;
    SettingsStore settings(MachineSettingsFolder(), UserSettingsFolder(), prompts);
    SystemClock clock;
    toolkit::QtEvents events;
    Application program{
        ApplicationFolder(), TempFolder(), ProgramVersion(), settings, prompts, clock, events};
    Session& session = program.session;
    session.database = {DatabaseKindOf(settings.Read("DBType")), settings.Read("DBIP"), "", ""};
    session.CurrentUser = "Administrator";
    session.CurrentAccess = AccessRights::All();
    session.UseStatsMain = true;
    toolkit::Printers printers;
    toolkit::Forms forms;
    ReportFlags flags;
    RegisterWindows(forms, program, flags, printers);
    forms.Show(name);
    return QApplication::exec();
}

}  // namespace
}  // namespace tallix

int main(int argumentCount, char** arguments) {
    tallix::toolkit::GuardedApplication toolkit(argumentCount, arguments, [](const std::exception& failure) {
        std::cerr << failure.what() << std::endl;
    });
    tallix::toolkit::ApplyStyle(toolkit);
    return argumentCount == 2 ? tallix::ShowForm(arguments[1]) : EXIT_FAILURE;
}
