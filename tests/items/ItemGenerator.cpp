#include "tests/items/ItemGenerator.h"

namespace {

using namespace std::string_literals;

const std::vector<std::string> kWords = {"Width", "Height", "Leaves", "Frame depth", "a", "b", "c", "width"};

const std::vector<std::string> kPlaceholders = {"<<1501>>", "<<1502>>", "<<1503>>",  "<<1504>>", "<<1505>>",
                                                "<<1506>>", "<<1507>>", "<<01508>>", "<<1509>>", "<<1510>>",
                                                "<<2001>>", "<<1363>>", "<<7>>"};

// What stands in a label, a title or free text beside words.
const std::vector<std::string> kOddities = {"<<0>>",
                                            "<<>>",
                                            "<<99999>>",
                                            "<<67037>>",
                                            "<<99999999999>>",
                                            "<<a>>",
                                            "<<15",
                                            "<<",
                                            ">>",
                                            ">><<",
                                            "< <1501>>",
                                            "\"",
                                            "\"\"",
                                            "\"D",
                                            "\"R 5",
                                            "\"I\"",
                                            "%",
                                            "%%",
                                            "$1",
                                            "=",
                                            " ",
                                            "  ",
                                            "\t",
                                            "\r",
                                            "\x1A",
                                            "\0"s,
                                            "\x80",
                                            "\x9F",
                                            "\xA0",
                                            "\xE0",
                                            "\xC0\xE0",
                                            "\xFF",
                                            "\xEF\xBB\xBF",
                                            "\\",
                                            "*",
                                            "^",
                                            "{",
                                            "}"};

const std::vector<std::string> kNumbers = {"", "0", "00", "01", "007", "99999999999999999999"};

const std::vector<std::string> kSpaces = {"", " ", " ", " ", "  ", "      "};

const std::vector<std::string> kTypes = {"I", "D", "R"};

const std::vector<std::string> kValues = {
    "900",        "2100",         "0.08",     "-2.1",  "2.9",    "0",        "-0",
    "1",          "12.5",         "1e3",      "-.5e2", "5.",     ".5",       "+7",
    "1234567.89", "0.0000001234", "999999.5", "1e15",  "1e16",   "1e99",     "1e100",
    "1e300",      "-1e300",       "1e-300",   "1e400", "-1e400", "1e-400",   "2147483647",
    "2147483648", "-2147483649",  "abc",      "",      "nan",    "inf",      "0x1F",
    "5 mm",       "1,5",          "1e",       "1e+",   "--5",    "<<1501>>", "\"",
    "3 \"",       "3\"\"",        "3 %",      "\t4",   "\v4",    "4\0004"s,  "0.1",
    "33.33333",   "0.333333333"};

const std::vector<std::string> kBlockLines = {"VAR",     "END_VAR", "VAR",       "END_VAR", " VAR",
                                              "VAR ",    "var",     "Var",       "VAR\t",   "END_VAR ",
                                              "end_var", "VAR\0x"s, "END_VAR\0"s};

const std::vector<double> kScales = {1.0, 1.0, 1.0, 1000.0, 0.001, 25.4, 3.0, -1.0, 0.0, 1e300};

}  // namespace

std::size_t CItemGenerator::Below(std::size_t bound) {
    return m_random() % bound;
}

const std::string& CItemGenerator::OneOf(const std::vector<std::string>& choices) {
    return choices[Below(choices.size())];
}

GeneratedItem CItemGenerator::Item() {
    GeneratedItem item;
    const Lines lines = FileLines();
    item.workingFile = Joined(lines);
    if (Chance(97)) {
        item.templateFile = Chance(40) ? Joined(lines) : Chance(80) ? Joined(Changed(lines)) : File();
    }
    item.scale = kScales[Below(kScales.size())];
    item.mode = static_cast<int>(Below(3));
    return item;
}

std::string CItemGenerator::File() {
    return Joined(FileLines());
}

CItemGenerator::Lines CItemGenerator::FileLines() {
    Lines lines;
    if (Chance(2)) {
        return lines;
    }
    lines.push_back(Chance(90) ? "free text" : Chance(50) ? "VAR" : OtherLine());
    if (Chance(3)) {
        lines.front().insert(0, Chance(50) ? "\xEF\xBB\xBF" : "\xFF\xFE");
    }
    if (Chance(98)) {
        lines.push_back(TitleLine());
    }
    lines.push_back(Chance(90) ? "VAR" : BlockLine());
    for (std::size_t count = Below(14); count > 0; --count) {
        lines.push_back(Chance(85) ? ParameterLine() : Chance(40) ? BlockLine() : OtherLine());
    }
    if (Chance(90)) {
        lines.push_back("END_VAR");
        for (std::size_t count = Below(3); count > 0; --count) {
            lines.push_back(Chance(50) ? ParameterLine() : OtherLine());
        }
    }
    return lines;
}

std::string CItemGenerator::TitleLine() {
    switch (Below(6)) {
        case 0:
            return BlockLine();
        case 1:
            return OneOf(kPlaceholders);
        case 2:
            return ParameterLine();
        default:
            return Label();
    }
}

std::string CItemGenerator::BlockLine() {
    return OneOf(kBlockLines);
}

std::string CItemGenerator::OtherLine() {
    return Chance(30) ? std::string() : Label();
}

std::string CItemGenerator::ParameterLine() {
    const std::string number = Chance(85) ? std::to_string(1 + Below(20)) : OneOf(kNumbers);
    const std::string type = Chance(98) ? OneOf(kTypes) : Chance(70) ? "d" : "x";
    std::string line = "$" + number + (Chance(97) ? OneOf(kSpaces) : "\t") + "=";
    line += OneOf(kSpaces) + "\"";
    line += Label() + "\"" + type;
    line += (Chance(70) ? " " : "") + Value();
    return Chance(97) ? line : " " + line;
}

// Mostly a placeholder with something around it; often enough one that another line has too.
std::string CItemGenerator::Label() {
    std::string label;
    for (std::size_t count = 1 + Below(3); count > 0; --count) {
        label += Chance(45) ? OneOf(kPlaceholders) : Chance(60) ? OneOf(kWords) : OneOf(kOddities);
    }
    if (Chance(3)) {
        label += std::string(250 + Below(20), 'x');
    }
    return label + (Chance(25) ? "%" : "");
}

std::string CItemGenerator::Value() {
    return Chance(60) ? OneOf(kValues) : std::to_string(static_cast<int>(Below(100000)) - 20000) + ".25";
}

// The lines of another time: some gone, some twice, some others.
CItemGenerator::Lines CItemGenerator::Changed(Lines lines) {
    Lines changed;
    for (std::string& line : lines) {
        if (Chance(6)) {
            continue;
        }
        if (Chance(6)) {
            changed.push_back(Chance(70) ? ParameterLine() : OtherLine());
        }
        if (Chance(4)) {
            changed.push_back(line);
        }
        changed.push_back(std::move(line));
    }
    return changed;
}

std::string CItemGenerator::Joined(const Lines& lines) {
    const std::size_t kind = Below(3);  // LF, CR LF, both
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + (kind == 0 || (kind == 2 && Chance(50)) ? "\n" : "\r\n");
    }
    if (Chance(25) && !bytes.empty()) {
        bytes.pop_back();
    }
    if (Chance(50) && !bytes.empty() && bytes.back() == '\r') {
        bytes.pop_back();
    }
    return bytes;
}
