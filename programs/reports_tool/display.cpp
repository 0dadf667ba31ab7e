#include "display.h"

#include <QGuiApplication>
#include <cstdlib>
#include <iostream>

#include "scheduling/unattended_runner.h"
#include "toolkit/message_prompts.h"

namespace tallix {
namespace {

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool HasScreen() {
    return QGuiApplication::platformName() != "offscreen";
}

void KeepSevereMessages(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << std::endl;
}

}  // namespace

bool HasDisplay() {
    return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

// The toolkit tries the platforms in their order.
void PrepareUnattendedToolkit() {
    const char* platforms = "offscreen";
    if (IsSet("DISPLAY")) platforms = "xcb;offscreen";
    if (IsSet("WAYLAND_DISPLAY")) platforms = "wayland;xcb;offscreen";
    if (!IsSet("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", platforms, 1);
    qInstallMessageHandler(KeepSevereMessages);
}

std::unique_ptr<Prompts> MakePrompts() {
    if (HasScreen()) return std::make_unique<toolkit::MessagePrompts>();
    return std::make_unique<UnattendedPrompts>();
}

void ReportFailure(const std::exception& failure, Audience audience) {
    if (audience == Audience::Person && HasScreen()) {
        toolkit::MessagePrompts().Show({"Tallix Reports", failure.what(), MessageIcon::Critical});
    } else {
        std::cerr << "Tallix_Reports: " << failure.what() << std::endl;
    }
}

}  // namespace tallix
