// What the program finds around it: a display with a person at it, or neither.
#pragma once

#include <memory>

#include "host/prompts.h"

namespace tallix {

/// Whether windows can open. Asked before the toolkit starts, which would end the process.
bool HasDisplay();

/// Makes the toolkit start without a display, or with one that no longer answers, and keep
/// its remarks to itself: cron mails every line on standard error.
void PrepareUnattendedToolkit();

/// Message boxes where a person can see and answer them, else prompts that answer by
/// themselves. Needs the started toolkit.
std::unique_ptr<Prompts> MakePrompts();

/// Reports what ends the program: in a message box, or on standard error where nobody
/// would see one.
enum class Audience { Person, Nobody };
void ReportFailure(const std::exception& failure, Audience audience);

}  // namespace tallix
