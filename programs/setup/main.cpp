// Tallix_Setup: lays down what the Reports Tool needs and changes nothing that is there.
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "setup/setup.h"
#include "setup/setup_options.h"

namespace {

constexpr int kFailed = 1;
constexpr int kNotUnderstood = 2;

// Database clients report their failures in several lines; a script wants one.
int Fail(std::string text, int status) {
    while (!text.empty() && text.back() == '\n') text.pop_back();
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    std::cout.flush();
    std::cerr << "Tallix_Setup: " << text << '\n';
    return status;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    try {
        const auto options =
            tallix::ParseSetupOptions(std::vector<std::string>(arguments + 1, arguments + argumentCount));
        if (options.help) {
            std::cout << tallix::SetupUsage();
            return 0;
        }
        tallix::SetUp(options, std::cout);
        return 0;
    } catch (const tallix::UsageError& failure) {
        return Fail(failure.what(), kNotUnderstood);
    } catch (const std::exception& failure) {
        return Fail(failure.what(), kFailed);
    }
}
