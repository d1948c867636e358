// The LISP reference names every function, no others, and its short examples give what it says.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "devhost/drawlisp/DrawFunctions.h"
#include "lisp/Builtins.h"
#include "lisp/Printer.h"
#include "lisp/Source.h"
#include "tests/unit/docs/Pages.h"
#include "tests/unit/docs/TestLispHost.h"

using namespace devhost;
using namespace tavrin::lisp;
using namespace tests;

namespace {

std::string Narrow(const std::wstring& text) {
    return std::filesystem::path(text).string();
}

std::string LowerCase(std::string text) {
    for (char& letter : text) {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return text;
}

// The texts between backquotes.
std::vector<std::string> CodeIn(const std::string& cell) {
    std::vector<std::string> code;
    std::istringstream parts(cell);
    std::string part;
    for (bool inside = false; std::getline(parts, part, '`'); inside = !inside) {
        if (inside) {
            code.push_back(part);
        }
    }
    return code;
}

// The rows of the tables of functions: names, what they do, an example, its result.
std::vector<std::vector<std::string>> FunctionRows() {
    std::vector<std::vector<std::string>> rows;
    for (std::vector<std::string>& row : ReadPage("docs/authors/lisp.md").rows) {
        if (row.size() == 4 && row[0].starts_with("`")) {
            rows.push_back(std::move(row));
        }
    }
    return rows;
}

std::set<std::string> DocumentedNames() {
    std::set<std::string> names;
    for (const std::vector<std::string>& row : FunctionRows()) {
        for (const std::string& name : CodeIn(row[0])) {
            names.insert(name);
        }
    }
    return names;
}

// The functions of the language and of the drawing. Two belong to the program.
std::set<std::string> KnownNames() {
    std::set<std::string> names = {"draw-fit", "res-text"};
    for (const SpecialForm& form : ControlForms()) {
        names.insert(LowerCase(Narrow(form.name)));
    }
    for (const auto& table : {ControlFunctions(), ArithmeticFunctions(), MathFunctions(),
                              PredicateFunctions(), ListFunctions(), TextFunctions(), ConversionFunctions(),
                              GeometryFunctions(), OutputFunctions(), FileFunctions(), HostFunctions()}) {
        for (const Builtin& builtin : table) {
            names.insert(LowerCase(Narrow(builtin.name)));
        }
    }
    for (const char* name : {"draw-line", "draw-polyline", "draw-circle", "draw-arc", "draw-text",
                             "draw-clear", "draw-placement"}) {
        names.insert(name);
    }
    return names;
}

TEST(LispReference, NamesEachFunctionAndNoOther) {
    EXPECT_EQ(DocumentedNames(), KnownNames());
}

TEST(LispReference, KnowsTheFunctionsThatDraw) {
    TestLispHost host;
    CEvaluator evaluator(host);
    CDrawing drawing;
    DefineDrawFunctions(evaluator, drawing);
    for (const std::string& name : DocumentedNames()) {
        if (name != "draw-fit" && name != "res-text") {
            EXPECT_FALSE(evaluator.Variable(UpperCase(std::wstring(name.begin(), name.end()))).IsNil())
                << name;
        }
    }
}

TEST(LispReference, GivesWhatItsExamplesSay) {
    int examplesSeen = 0;
    for (const std::vector<std::string>& row : FunctionRows()) {
        const std::vector<std::string> example = CodeIn(row[2]);
        const std::vector<std::string> result = CodeIn(row[3]);
        ASSERT_EQ(example.size(), result.size()) << row[0];
        for (std::size_t i = 0; i < example.size(); ++i) {
            ++examplesSeen;
            TestLispHost host;
            CEvaluator evaluator(host);
            CDrawing drawing;
            DefineDrawFunctions(evaluator, drawing);
            const std::wstring text = std::filesystem::path(example[i]).wstring();
            LispResult value;
            ASSERT_NO_THROW(value = evaluator.Run(ReadText(text))) << example[i];
            EXPECT_EQ(value ? Narrow(Print(*value)) : "", result[i]) << example[i];
        }
    }
    EXPECT_GT(examplesSeen, 60);
}

}  // namespace
