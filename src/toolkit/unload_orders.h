// The orders in which windows are unloaded when a person leaves. Forms that are not loaded
// are skipped.
#pragma once

#include <array>
#include <span>

#include "toolkit/form_names.h"
#include "toolkit/forms.h"

namespace tallix::toolkit {

inline constexpr std::array kLogoutOrder = {kMainForm,          kOptionsForm,          kCoverPagesForm,
                                            kBackupForm,        kSplashForm,           kLoginForm,
                                            kPresetReportsForm, kReportOutputForm,     kArchiveForm,
                                            kCustomReportsForm, kSettingsRequiredForm, kAboutForm,
                                            kStatisticsForm};

inline constexpr std::array kExitOrder = {kMainForm, kOptionsForm, kCoverPagesForm, kBackupForm,
                                          kStatisticsForm};

inline constexpr std::array kStatisticsExitOrder = {kStatisticsForm, kMainForm,   kOptionsForm,
                                                    kCoverPagesForm, kBackupForm, kSplashForm};

inline constexpr std::array kLoginExitOrder = {kLoginForm,      kMainForm,   kOptionsForm,
                                               kCoverPagesForm, kBackupForm, kSplashForm};

inline void UnloadInOrder(Forms& forms, std::span<const char* const> order) {
    for (const char* name : order) forms.Unload(name);
}

}  // namespace tallix::toolkit
