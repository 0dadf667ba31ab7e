#include "text/encryption_tools.h"

#include <gtest/gtest.h>

#include <random>

#include "failures/errors.h"

namespace tallix {
namespace {

// Computed by hand from the rules of the cipher. A change here makes every stored
// account unreadable.
TEST(EncryptionTools, StoredFormsDoNotChange) {
    const std::pair<const char*, const char*> cases[] = {
        {"a", "608F"},
        {"Administrator", "168F2E58633B0B320D7D0F601539205D16780B812A662D7E1A96"},
        {"€𝄞", "FB48339A70B5"},
        {"", ""}};
    for (const auto& [text, stored] : cases) {
        EXPECT_EQ(EncipherForStorage(text), stored);
        EXPECT_EQ(DecipherFromStorage(stored), text);
    }
    EXPECT_EQ(EncipherForStorage(std::string(42, '1')).size(), 168U);
}

TEST(EncryptionTools, AnyBytesComeBackUnderAnyKey) {
    std::mt19937 random(7);
    for (const std::string key : {"Tb9+QuillPr3ssM0nKy", "k", "~~~~", "\x01\x02", "\xFF\xF0\xCF\xCE"}) {
        EncryptionTools::Bytes data;
        for (int index = 0; index < 4000; ++index) data.push_back(static_cast<unsigned char>(random()));
        EXPECT_EQ(EncryptionTools::Decipher(key, EncryptionTools::Encipher(key, data)), data) << key;
    }
}

TEST(EncryptionTools, RefusesWhatItCannotTurn) {
    EXPECT_THROW(EncryptionTools::Encipher("k", EncryptionTools::Bytes(32768, 1)), ConversionError);
    EXPECT_THROW(EncryptionTools::Decipher("k", EncryptionTools::Bytes(32768, 1)), ConversionError);
    EXPECT_THROW(EncryptionTools::Encipher("", {1}), ConversionError);
    for (const char* digits : {"0G", " 1", "0x", "-1"}) {
        EXPECT_THROW(EncryptionTools::FromHexadecimal(digits), ConversionError) << digits;
    }
    EXPECT_EQ(EncryptionTools::FromHexadecimal("0aFf7"), (EncryptionTools::Bytes{0x0A, 0xFF}));
}

TEST(EncryptionTools, BrokenTextsDoNotStopTheReading) {
    EXPECT_EQ(EncryptionTools::FromBytes({0x00, 0xD8, 'a', 0, 0x00, 0xDC, 0x3D}), "\uFFFDa\uFFFD");
    EXPECT_EQ(EncryptionTools::FromBytes({0x00, 0xD8}), "\uFFFD");
    EXPECT_EQ(EncryptionTools::ToBytes("\xFF"), (EncryptionTools::Bytes{0xFD, 0xFF}));
}

}  // namespace
}  // namespace tallix
