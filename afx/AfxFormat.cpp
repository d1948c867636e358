// CString's printf-like formatting.
//
// Numbers go through the narrow snprintf, one at a time: it is the one formatting function that writes
// exponents as the C standard says whichever C runtime lies beneath. Texts are copied here, because the
// meaning of %s in wide formats differs between the runtimes.
#include <algorithm>
#include <cstdio>
#include <cwchar>

#include "afx/afxwin.h"

namespace {

// One conversion of a format, as "%-08.3lld" is.
struct Conversion {
    std::string flags;
    int width = 0;
    int precision = -1;  // -1: none given
    enum { normal, byteSized, narrow, wide, wide64, pointerSized } size = normal;
    wchar_t type = 0;
};

class CFormatter {
public:
    CFormatter(std::wstring& output, LPCTSTR format, va_list arguments) : m_output(output), m_next(format) {
        va_copy(m_arguments, arguments);
    }
    ~CFormatter() { va_end(m_arguments); }
    CFormatter(const CFormatter&) = delete;
    CFormatter& operator=(const CFormatter&) = delete;

    void Run() {
        while (*m_next != L'\0') {
            const LPCTSTR percent = m_next + std::wcscspn(m_next, L"%");
            m_output.append(m_next, percent);
            m_next = percent;
            if (*m_next == L'%') {
                Convert(ReadConversion());
            }
        }
    }

private:
    Conversion ReadConversion() {
        Conversion conversion;
        ++m_next;
        for (; *m_next != L'\0' && std::wcschr(L"-+ 0#", *m_next) != nullptr; ++m_next) {
            conversion.flags += static_cast<char>(*m_next);
        }
        conversion.width = ReadNumber();
        if (conversion.width < 0) {  // only through "*": as a minus flag before the number
            conversion.flags += '-';
            conversion.width = -conversion.width;
        }
        if (*m_next == L'.') {
            ++m_next;
            conversion.precision = std::max(ReadNumber(), -1);
        }
        ReadSize(conversion);
        conversion.type = *m_next;
        if (*m_next != L'\0') {
            ++m_next;
        }
        return conversion;
    }

    int ReadNumber() {
        if (*m_next == L'*') {
            ++m_next;
            return va_arg(m_arguments, int);
        }
        wchar_t* end = nullptr;
        const long number = std::wcstol(m_next, &end, 10);
        m_next = end;
        return static_cast<int>(number);
    }

    bool Skip(LPCTSTR text) {
        const size_t length = std::wcslen(text);
        if (std::wcsncmp(m_next, text, length) != 0) {
            return false;
        }
        m_next += length;
        return true;
    }

    void ReadSize(Conversion& conversion) {
        if (Skip(L"I64") || Skip(L"ll") || Skip(L"j")) {
            conversion.size = Conversion::wide64;
        } else if (Skip(L"I32")) {
            conversion.size = Conversion::normal;
        } else if (Skip(L"I") || Skip(L"z") || Skip(L"t")) {
            conversion.size = Conversion::pointerSized;
        } else if (Skip(L"l") || Skip(L"w")) {
            conversion.size = Conversion::wide;
        } else if (Skip(L"hh")) {
            conversion.size = Conversion::byteSized;
        } else if (Skip(L"h")) {
            conversion.size = Conversion::narrow;
        }
    }

    void Convert(const Conversion& conversion) {
        switch (conversion.type) {
            case L'd':
            case L'i':
                AppendNumber(conversion, "ll", ReadSigned(conversion));
                break;
            case L'u':
            case L'o':
            case L'x':
            case L'X':
                AppendNumber(conversion, "ll", ReadUnsigned(conversion));
                break;
            case L'p':
                AppendPointer(conversion, va_arg(m_arguments, const void*));
                break;
            case L'a':
            case L'A':
            case L'e':
            case L'E':
            case L'f':
            case L'F':
            case L'g':
            case L'G':
                AppendNumber(conversion, "", va_arg(m_arguments, double));
                break;
            case L'c':
            case L'C':
                AppendText(conversion, std::wstring(1, static_cast<wchar_t>(va_arg(m_arguments, int))));
                break;
            case L's':
            case L'S':
                AppendText(conversion, ReadText(conversion));
                break;
            default:  // "%%", and as they stand characters that no conversion has
                if (conversion.type != L'\0') {
                    m_output += conversion.type;
                }
        }
    }

    long long ReadSigned(const Conversion& conversion) {
        switch (conversion.size) {
            // NOLINTNEXTLINE(bugprone-branch-clone): the next one differs in 32 bits
            case Conversion::wide64:
                return va_arg(m_arguments, long long);
            case Conversion::pointerSized:
                return va_arg(m_arguments, INT_PTR);
            case Conversion::narrow:
                return static_cast<short>(va_arg(m_arguments, int));
            case Conversion::byteSized:
                return static_cast<signed char>(va_arg(m_arguments, int));
            default:
                return va_arg(m_arguments, int);
        }
    }

    unsigned long long ReadUnsigned(const Conversion& conversion) {
        switch (conversion.size) {
            // NOLINTNEXTLINE(bugprone-branch-clone): the next one differs in 32 bits
            case Conversion::wide64:
                return va_arg(m_arguments, unsigned long long);
            case Conversion::pointerSized:
                return va_arg(m_arguments, UINT_PTR);
            case Conversion::narrow:
                return static_cast<unsigned short>(va_arg(m_arguments, unsigned));
            case Conversion::byteSized:
                return static_cast<unsigned char>(va_arg(m_arguments, unsigned));
            default:
                return va_arg(m_arguments, unsigned);
        }
    }

    // Narrow texts are taken as Latin-1: the program's own, class names for the most part, are ASCII.
    std::wstring ReadText(const Conversion& conversion) {
        const bool isNarrow = conversion.type == L's' ? conversion.size == Conversion::narrow
                                                      : conversion.size != Conversion::wide;
        const void* const pointer = va_arg(m_arguments, const void*);
        if (pointer == nullptr) {
            return L"(null)";
        }
        const size_t limit = conversion.precision < 0 ? SIZE_MAX : static_cast<size_t>(conversion.precision);
        std::wstring text;
        if (isNarrow) {
            for (auto byte = static_cast<const unsigned char*>(pointer); text.size() < limit && *byte != 0;
                 ++byte) {
                text += static_cast<wchar_t>(*byte);
            }
        } else {
            const auto units = static_cast<const wchar_t*>(pointer);
            text.assign(units, limit == SIZE_MAX ? std::wcslen(units) : ::wcsnlen(units, limit));
        }
        return text;
    }

    void AppendText(const Conversion& conversion, const std::wstring& text) {
        const auto width = static_cast<size_t>(conversion.width);
        const std::wstring padding(width > text.size() ? width - text.size() : 0, L' ');
        if (conversion.flags.find('-') != std::string::npos) {
            m_output.append(text).append(padding);
        } else {
            m_output.append(padding).append(text);
        }
    }

    // All its digits, in capitals, without a prefix.
    void AppendPointer(const Conversion& conversion, const void* pointer) {
        Conversion number = conversion;
        number.precision = 2 * sizeof pointer;
        number.type = L'X';
        AppendNumber(number, "ll", static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(pointer)));
    }

    template <class TNumber>
    void AppendNumber(const Conversion& conversion, const char* size, TNumber number) {
        const std::string format = '%' + conversion.flags + "*.*" + size + static_cast<char>(conversion.type);
        const int length =
            std::snprintf(nullptr, 0, format.c_str(), conversion.width, conversion.precision, number);
        std::string digits(static_cast<size_t>(std::max(length, 0)), '\0');
        std::snprintf(digits.data(), digits.size() + 1, format.c_str(), conversion.width,
                      conversion.precision, number);
        for (const char digit : digits) {
            m_output += static_cast<unsigned char>(digit);
        }
    }

    std::wstring& m_output;
    LPCTSTR m_next;
    va_list m_arguments;
};

}  // namespace

void CString::FormatV(LPCTSTR format, va_list arguments) {
    std::wstring text;  // apart, because the arguments may point into this text
    CFormatter(text, format, arguments).Run();
    m_text.swap(text);
}

void CString::Format(LPCTSTR format, ...) {
    va_list arguments = {};
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}
