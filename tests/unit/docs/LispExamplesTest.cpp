// The worked examples of the LISP reference: each routine of docs/examples/lisp is run; what it prints is
// NAME.txt, what it draws is NAME.svg if there is one.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "devhost/drawing/SvgWriter.h"
#include "devhost/drawlisp/DrawFunctions.h"
#include "lisp/Source.h"
#include "tests/unit/docs/Pages.h"
#include "tests/unit/docs/TestLispHost.h"

using namespace devhost;
using namespace tavrin::lisp;
using namespace tests;

namespace {

namespace fs = std::filesystem;

const fs::path examples = fs::path(SOURCE_DIR) / "docs/examples";

std::vector<std::string> RoutineNames() {
    std::vector<std::string> names;
    for (const fs::directory_entry& file : fs::directory_iterator(examples / "lisp")) {
        if (file.path().extension() == ".lsp") {
            names.push_back(file.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

// The shapes of a picture, without its style and the ways in which texts are set.
std::string ShapesOf(const std::string& svg) {
    std::istringstream lines(svg);
    std::string shapes;
    for (std::string line; std::getline(lines, line);) {
        if (std::ranges::any_of(std::array{"<line ", "<poly", "<circle ", "<path "},
                                [&](const char* start) { return line.starts_with(start); })) {
            shapes += line + '\n';
        }
    }
    return shapes;
}

// Runs in a folder of its own, in which the template of the first example lies.
class LispExample : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "lisp-example-XXXXXX").string();
        folder = mkdtemp(name.data());
        before = fs::current_path();
        fs::current_path(folder);
        fs::copy_file(examples / "template/first/before.TXT", "shelf.TXT");
    }
    void TearDown() override {
        fs::current_path(before);
        fs::remove_all(folder);
    }

    fs::path folder;
    fs::path before;
};

TEST_P(LispExample, PrintsAndDrawsWhatThePageSays) {
    const fs::path path = examples / "lisp" / (GetParam() + ".lsp");
    const std::wstring name = path.filename().wstring();
    TestLispHost host;
    CEvaluator evaluator(host);
    CDrawing drawing;
    DefineDrawFunctions(evaluator, drawing);
    try {
        evaluator.Run(ReadSourceFile(path.wstring(), name));
    } catch (const CLispError& error) {
        EXPECT_TRUE(error.IsHandled()) << host.Printed();
    }
    EXPECT_EQ(host.Printed(), TextOf("docs/examples/lisp/" + GetParam() + ".txt"));
    const std::string picture = "docs/examples/lisp/" + GetParam() + ".svg";
    if (fs::exists(fs::path(SOURCE_DIR) / picture)) {
        EXPECT_EQ(ShapesOf(ToSvg(drawing)), ShapesOf(TextOf(picture)));
    }
}

INSTANTIATE_TEST_SUITE_P(Documentation, LispExample, testing::ValuesIn(RoutineNames()),
                         [](const auto& info) { return info.param; });

}  // namespace
