// The page on the framework stand-in lists every member that the stand-in's headers declare.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The name that a declaration is about: what stands before the first bracket, or the last word of a variable.
std::string NameIn(const std::string& declaration) {
    static const std::regex function(R"((operator\s*(?:[^\w\s(]+|\w+)|~?\w+)\s*\()");
    static const std::regex variable(R"((\w+)\s*(?:=.*|\[.*|\{.*)?$)");
    std::smatch found;
    if (std::regex_search(declaration, found, function) || std::regex_search(declaration, found, variable)) {
        return std::regex_replace(found[1].str(), std::regex(R"(operator\s+)"), "operator ");
    }
    return {};
}

// Goes through a header without comments and macros and records the public members of a class.
class CHeaderReader {
public:
    explicit CHeaderReader(Names& names) : m_names(names) {}

    void Read(std::string text) {
        text = std::regex_replace(text, std::regex(R"(//[^\n]*)"), "");
        text = std::regex_replace(text, std::regex(R"(#(?:[^\n]*\\\n)*[^\n]*)"), "");
        static const std::regex head(R"(\n(class|struct) (\w+)[^;{]*\{)");
        for (std::sregex_iterator found(text.begin(), text.end(), head), end; found != end; ++found) {
            const std::string name = (*found)[2];
            if (!name.starts_with("CAfx") && !name.starts_with("AFX_M")) {
                ReadClass(name, text.substr(static_cast<std::size_t>(found->position() + found->length())),
                          (*found)[1] == "struct");
            }
        }
    }

private:
    void ReadClass(const std::string& name, const std::string& body, bool isShown) {
        static const std::regex access(
            R"(\s*(public|protected|private):|\s*DECLARE_(DYNAMIC|MESSAGE_MAP)\(\w*\))");
        int depth = 1;
        std::string statement;
        for (const char character : body) {
            depth += character == '{' ? 1 : character == '}' ? -1 : 0;
            if (depth == 0) {
                return;
            }
            const bool ends = depth == 1 && (character == ';' || character == '}');
            if (!ends && depth == 1 && character != '{') {
                statement += character;
            }
            std::smatch found;
            if (std::regex_match(statement, found, access)) {
                isShown = found[1] != "private";
                statement.clear();
            } else if (ends) {
                if (isShown) {
                    Note(name, statement);
                }
                statement.clear();
            }
        }
    }

    void Note(const std::string& className, const std::string& statement) {
        static const std::regex noMember(R"(\s*(enum\b[\s\S]*|friend\b[\s\S]*|[\s\S]*= delete|\s*))");
        const std::string name = NameIn(statement);
        if (!std::regex_match(statement, noMember) && !name.empty() && name[0] != '~') {
            m_names.insert(className + "::" + name);
        }
    }

    Names& m_names;
};

Names DeclaredNames() {
    Names names;
    CHeaderReader reader(names);
    for (const fs::directory_entry& file : fs::directory_iterator(SOURCE_DIR "/afx")) {
        if (file.path().extension() == ".h") {
            reader.Read(BytesOf(file.path()));
        }
    }
    return names;
}

// From the blocks of signatures, and from the table of what is the stand-in's own.
Names ListedNames() {
    Names names;
    std::istringstream page(BytesOf(SOURCE_DIR "/docs/developers/framework.md"));
    std::string className;
    for (std::string line; std::getline(page, line);) {
        std::smatch found;
        if (std::regex_search(line, found, std::regex(R"(^class (\w+))"))) {
            className = found[1];
        } else if (line.starts_with("```")) {
            className.clear();
        } else if (!className.empty()) {
            names.insert(className + "::" + NameIn(line));
        }
        static const std::regex own(R"(`(\w+::[\w=]+)`)");
        for (std::sregex_iterator word(line.begin(), line.end(), own), end; word != end; ++word) {
            names.insert((*word)[1]);
        }
    }
    return names;
}

TEST(Framework, DeclaresNothingThatItsPageDoesNotList) {
    const Names listed = ListedNames();
    const Names declared = DeclaredNames();
    EXPECT_GT(declared.size(), 250U);
    for (const std::string& name : declared) {
        EXPECT_TRUE(listed.contains(name)) << name;
    }
}

}  // namespace
