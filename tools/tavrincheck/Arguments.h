// A walk over the arguments of a command. An option's value stands behind it or behind its "="; what follows
// "--" is no option.
//
//     for (CArguments rest(arguments); rest.Next();) {
//         if (!rest.IsOption()) {
//             names.push_back(rest.Current());
//         } else if (rest.Current() == "--scale") {
//             scale = rest.RealValue("a number");
//         } else {
//             rest.FailUnknown();
//         }
//     }
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class CArguments {
public:
    // The arguments must live longer than the walk.
    explicit CArguments(const std::vector<std::string>& arguments) : m_arguments(arguments) {}

    // Goes to the next option or file; false at the end.
    bool Next();

    bool IsOption() const { return m_isOption; }

    // An option without "=" and its value, or a file's name.
    const std::string& Current() const { return m_current; }

    // The value of the current option. Throws CToolError when there is none, which says what to give, and the
    // last two also when it is not a number of that range as a whole.
    std::string Value(const char* meaning);
    double RealValue(const char* meaning);
    int IntValue(const char* meaning, int lowest, int highest);

    // Throws CToolError when the current option was given a value.
    void ExpectNoValue() const;

    // Throws CToolError for the current option.
    [[noreturn]] void FailUnknown() const;

private:
    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    bool m_onlyNames = false;
    bool m_isOption = false;
    std::string m_current;
    std::optional<std::string> m_value;
};
