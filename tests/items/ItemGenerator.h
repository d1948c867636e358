// Makes the two files of an item as no author would write them: of everything that means something to the
// reader, nearly means it, or must not disturb it. The same seed gives the same files on every machine.
#pragma once

#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <vector>

struct GeneratedItem {
    std::string workingFile;
    std::optional<std::string> templateFile;  // rarely missing
    double scale = 1.0;
    int mode = 0;
};

class CItemGenerator {
public:
    explicit CItemGenerator(unsigned seed) : m_random(seed) {}

    GeneratedItem Item();

    // The bytes of one file.
    std::string File();

private:
    using Lines = std::vector<std::string>;

    std::size_t Below(std::size_t bound);
    bool Chance(std::size_t percent) { return Below(100) < percent; }
    const std::string& OneOf(const std::vector<std::string>& choices);

    Lines FileLines();
    std::string TitleLine();
    std::string BlockLine();
    std::string OtherLine();
    std::string ParameterLine();
    std::string Label();
    std::string Value();
    Lines Changed(Lines lines);
    std::string Joined(const Lines& lines);

    std::mt19937 m_random;
};
