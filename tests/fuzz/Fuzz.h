// What all fuzz targets share. A target is one function that the fuzzer calls with ever other bytes; it turns
// them into arguments and states what must hold whatever they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the program when something that must hold does not; the fuzzer then keeps the bytes that led here.
void Require(bool holds, const char* what);

// One character for each byte, as the module reads its files; the bytes 1 to 3 stand for characters beyond
// those that a byte can hold.
std::wstring WideText(std::string_view bytes);

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Takes the text up to the next line end off the front.
std::string_view CutLine(std::string_view& bytes);

// A null-terminated copy with nothing of its own after the null, so that a read beyond it is noticed.
class CTightText {
public:
    explicit CTightText(std::wstring_view text) : m_characters(text.begin(), text.end()) {
        m_characters.push_back(L'\0');
        m_characters.shrink_to_fit();
    }
    const wchar_t* Get() const { return m_characters.data(); }

private:
    std::vector<wchar_t> m_characters;
};
