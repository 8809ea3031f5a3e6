#include <ZelmarMediaLib/datatypes/EncodingConverter.h>

#include <cstddef>

namespace ZelmarMediaLib {

EncodingConverter* EncodingConverter::instance() {
    static EncodingConverter* const converter = new DefaultEncodingConverter;
    return converter;
}

std::vector<unsigned int> DefaultEncodingConverter::unicodeNarrowToWide(std::string const& narrow) const {
    std::vector<unsigned int> wide;
    std::size_t const length = narrow.size();
    wide.reserve(length);
    // Bytes past the end of the text count as absent (zero).
    auto byteAt = [&](std::size_t index) -> unsigned int {
        return index < length ? static_cast<unsigned char>(narrow[index]) : 0u;
    };
    auto tail = [&](std::size_t index) -> unsigned int { return byteAt(index) & 63u; };

    std::size_t cursor = 0;
    // One step per byte of the text, whatever each step takes: a zero or stray byte leaves
    // the cursor where it is, so everything behind it is dropped.
    for (std::size_t step = 0; step < length; ++step) {
        unsigned int const b0 = byteAt(cursor);
        if (b0 >= 1 && b0 <= 127) {
            wide.push_back(b0);
            cursor += 1;
        } else if (b0 >= 192 && b0 <= 223) {
            wide.push_back(((b0 & 31u) << 7) | tail(cursor + 1));
            cursor += 2;
        } else if (b0 >= 224 && b0 <= 239) {
            wide.push_back(((b0 & 15u) << 13) | (tail(cursor + 1) << 7) | tail(cursor + 2));
            cursor += 3;
        } else if (b0 >= 240 && b0 <= 247) {
            wide.push_back(((b0 & 7u) << 19) | (tail(cursor + 1) << 13) | (tail(cursor + 2) << 7) | tail(cursor + 3));
            cursor += 4;
        } else if (b0 >= 248 && b0 <= 251) {
            wide.push_back(((b0 & 3u) << 25) | (tail(cursor + 1) << 19) | (tail(cursor + 2) << 13) |
                           (tail(cursor + 3) << 7) | tail(cursor + 4));
            cursor += 5;
        } else if (b0 >= 254) {
            wide.push_back(((b0 & 1u) << 31) | (tail(cursor + 1) << 25) | (tail(cursor + 2) << 19) |
                           (tail(cursor + 3) << 13) | (tail(cursor + 4) << 7) | tail(cursor + 5));
            cursor += 6;
        }
        // 0, 128 to 191, 252 and 253: the cursor stays.
    }
    return wide;
}

std::string DefaultEncodingConverter::unicodeWideToNarrow(std::vector<unsigned int> const& wide) const {
    std::string narrow;
    narrow.reserve(wide.size());
    auto put = [&](unsigned int byte) { narrow.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    for (unsigned int const v : wide) {
        if (v <= 127) {
            put(v);
        } else if (v <= 2047) {
            put(192 + ((v >> 7) & 31));
            put(128 + (v & 63));
        } else if (v <= 4095) {
            put(224 + ((v >> 13) & 15));
            put(128 + ((v >> 7) & 63));
            put(128 + (v & 63));
        } else if (v <= 131071) {
            put(240 + ((v >> 19) & 7));
            put(128 + ((v >> 13) & 63));
            put(128 + ((v >> 7) & 63));
            put(128 + (v & 63));
        } else if (v <= 4194303) {
            put(248 + ((v >> 25) & 3));
            put(128 + ((v >> 19) & 63));
            put(128 + ((v >> 13) & 63));
            put(128 + ((v >> 7) & 63));
            put(128 + (v & 63));
        } else {
            put(252 + (v >> 31));
            put(128 + ((v >> 25) & 63));
            put(128 + ((v >> 19) & 63));
            put(128 + ((v >> 13) & 63));
            put(128 + ((v >> 7) & 63));
            put(128 + (v & 63));
        }
    }
    return narrow;
}

}  // namespace ZelmarMediaLib
