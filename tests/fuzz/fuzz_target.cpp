// The entry of one libFuzzer program; FUZZ_TARGET is a function of fuzz_targets.h.
#include "fuzz/fuzz_targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tallix::fuzz::FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}
