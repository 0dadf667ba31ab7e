// The names by which forms are loaded, shown and unloaded.
#pragma once

namespace tallix::ui {

inline constexpr char kSplashForm[] = "Form5";
inline constexpr char kLoginForm[] = "Form6";
inline constexpr char kSettingsRequiredForm[] = "Form11";

}  // namespace tallix::ui
