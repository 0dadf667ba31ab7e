// The reversible text cipher in which accounts are stored. It keeps user names,
// passwords and access strings unreadable to someone browsing the tables; it is not
// strong cryptography. Equal texts give equal ciphertexts, which lookups rely on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallix {

class EncryptionTools {
public:
    /// The bytes of a text in its 16-bit form, low byte first.
    using Bytes = std::vector<unsigned char>;

    /// The codes of the key are those of its bytes.
    /// Throws ConversionError for an empty key and for more than 32767 bytes of data.
    static Bytes Encipher(std::string_view key, const Bytes& data);
    static Bytes Decipher(std::string_view key, const Bytes& data);

    static Bytes ToBytes(std::string_view utf8);
    static std::string FromBytes(const Bytes& bytes);

    /// Two upper-case digits a byte, and back. An odd last digit is lost; a pair that
    /// is not hexadecimal throws ConversionError.
    static std::string ToHexadecimal(const Bytes& bytes);
    static Bytes FromHexadecimal(std::string_view digits);
};

/// The stored form of a text under the fixed key of the system, and its reading.
std::string EncipherForStorage(std::string_view text);
std::string DecipherFromStorage(std::string_view stored);

}  // namespace tallix
