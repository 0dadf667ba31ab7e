// The names by which forms are loaded, shown and unloaded.
#pragma once

namespace tallix {

inline constexpr char kMainForm[] = "Form1";
inline constexpr char kOptionsForm[] = "Form2";
inline constexpr char kCoverPagesForm[] = "Form3";
inline constexpr char kBackupForm[] = "Form4";
inline constexpr char kSplashForm[] = "Form5";
inline constexpr char kLoginForm[] = "Form6";
inline constexpr char kPresetReportsForm[] = "Form7";
inline constexpr char kReportOutputForm[] = "Form8";
inline constexpr char kArchiveForm[] = "Form9";
inline constexpr char kCustomReportsForm[] = "Form10";
inline constexpr char kSettingsRequiredForm[] = "Form11";
inline constexpr char kAboutForm[] = "Form13";
inline constexpr char kSitesForm[] = "Form14";
inline constexpr char kMappingsForm[] = "Form15";
inline constexpr char kSchedulesForm[] = "Form16";
inline constexpr char kCallCostingsForm[] = "Form17";
inline constexpr char kStatisticsForm[] = "Form18";
inline constexpr char kCallCostMapForm[] = "Form19";
inline constexpr char kAccessLoggingForm[] = "Form20";

}  // namespace tallix
