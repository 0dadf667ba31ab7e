// The last step of every start of another program.
#pragma once

namespace tallix {

/// Turns a process that was just forked into a program that has no standard streams, and
/// of this program's files none. Only system calls are made, as the other threads are
/// missing there. `arguments` begin with the program's path and end with a null pointer.
[[noreturn]] void BecomeProgram(char* const* arguments);

}  // namespace tallix
