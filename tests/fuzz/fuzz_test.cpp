// Feeds the fuzz targets mutated seeds in every test run; the seed is fixed, so that
// a failure comes back.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "fuzz/fuzz_targets.h"

namespace tallix {
namespace {

/// Cuts, repeats, or replaces a byte at a chance place, a few times over.
std::string Mutated(std::string text, std::mt19937& random) {
    for (auto step = random() % 6; step > 0 && !text.empty(); --step) {
        const std::size_t place = random() % text.size();
        const auto kind = random() % 4;
        if (kind == 0) text.erase(place, random() % 8);
        if (kind == 1) text.insert(place, text.substr(random() % text.size(), random() % 12));
        if (kind == 2) text.insert(place, 1, "[]\"\\=;\n\r. :/e\0"[random() % 14]);
        if (kind == 3) text[place] = static_cast<char>(random());
    }
    return text;
}

void Feed(void (*target)(std::string_view), const std::vector<std::string>& seeds) {
    std::mt19937 random(2021);
    for (const std::string& seed : seeds) {
        for (int round = 0; round < 500; ++round) target(Mutated(seed, random));
    }
}

TEST(Fuzz, HivesIniTextsAndConversions) {
    Feed(&fuzz::Hive, {"; c\n[A\\B]\n\"name\"=\"old\"\n\"other\"=\"\\\\x\\n\"\n[C]\n\"other\"=hex:01,00\n",
                       "\xEF\xBB\xBF[A\\B]\r\n\"other\"=\"\xA3\"\r\n[\r\n[A\\b]\r\n\"Name\"=hex:ff"});
    Feed(&fuzz::Ini, {"[Data]\r\nName= \"x\" \r\nother=1\r\n[Options]\r\nother=2\r\n[data]\r\nName=3",
                      ";\n[Data\n[ Data ]\nother='\xE9'\n\nname\n=\n"});
    Feed(&fuzz::Conversion, {"31/12/2020 23:59:58", "Dec 31, 2020 9:05 pm", "2020-12-31", "-12.5e+10",
                             "09:30:15", "Åß€ 𝄞 \xC3\xFF", "608F168F2E58633B"});
}

}  // namespace
}  // namespace tallix
