// The names by which forms are loaded, shown and unloaded.
#pragma once

namespace tallix::ui {

inline constexpr char kSplashForm[] = "Form5";
inline constexpr char kLoginForm[] = "Form6";
inline constexpr char kSettingsRequiredForm[] = "Form11";
inline constexpr char kReportOutputForm[] = "Form8";
inline constexpr char kPresetReportsForm[] = "Form7";
inline constexpr char kMainForm[] = "Form1";

}  // namespace tallix::ui
