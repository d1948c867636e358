// What the routines of all sample items have in common.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

#include "devhost/drawing/SvgWriter.h"
#include "tests/unit/samples/ItemRoutine.h"

using namespace devhost;
using namespace tavrin::lisp;
using namespace tests;

namespace {

// The parameters of an item's template: number to type letter.
std::map<int, char> ParametersOf(const std::map<int, std::string>& shown, const std::filesystem::path& file) {
    std::map<int, char> types;
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t quote = line.rfind('"');
        if (line.starts_with('$') && quote != std::string::npos) {
            types[std::atoi(line.c_str() + 1)] = line[quote + 1];
        }
    }
    EXPECT_EQ(types.size(), shown.size());
    return types;
}

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Another value that is near enough to be allowed.
std::string Changed(const std::string& value, char type) {
    if (type == 'I') {
        return std::to_string(std::atoi(value.c_str()) + 1);
    }
    return std::to_string(std::atof(value.c_str()) * 0.85 + 0.001);
}

TEST_F(ItemRoutine, EachVariantIsDrawnAndNoTwoAreTheSame) {
    for (const SampleItem& item : SampleItems()) {
        std::map<std::string, std::string> pictures;
        for (const std::string& variant : item.variants) {
            EXPECT_TRUE(Make(item.name, variant)) << item.name << ' ' << variant;
            EXPECT_GT(drawing.Entities().size(), 10u) << item.name << ' ' << variant;
            EXPECT_TRUE(messages.empty()) << item.name << ' ' << variant;
            const auto [other, isNew] = pictures.emplace(ToSvg(drawing), variant);
            EXPECT_TRUE(isNew) << item.name << ": " << variant << " is drawn like " << other->second;
        }
    }
}

TEST_F(ItemRoutine, EachVariantHasItsSlideAndIsOffered) {
    for (const SampleItem& item : SampleItems()) {
        Load(item.name);
        Run("(" + item.name + ")");
        std::vector<std::string> slides;
        for (const std::string& variant : item.variants) {
            slides.push_back(item.name + "_" + variant);
            const std::filesystem::path slide =
                std::filesystem::path(SAMPLES_DIR) / item.name / slides.back();
            EXPECT_TRUE(std::filesystem::exists(slide.string() + "_t.png") ||
                        std::filesystem::exists(slide.string() + "_t_3d.png"))
                << slide;
        }
        EXPECT_EQ(offered, slides);
    }
}

TEST_F(ItemRoutine, EachParameterSteersTheDrawing) {
    for (const SampleItem& item : SampleItems()) {
        std::map<std::string, std::string> pictures;
        typed.clear();
        for (const std::string& variant : item.variants) {
            Make(item.name, variant);
            pictures[variant] = ToSvg(drawing);
        }
        const auto values = shown;
        for (const auto& [number, type] : ParametersOf(values, folder / (item.name + ".TXT"))) {
            typed = {{number, Changed(values.at(number), type)}};
            bool changes = false;
            for (const std::string& variant : item.variants) {
                changes = changes || (Make(item.name, variant) ? ToSvg(drawing) != pictures[variant]
                                                               : !messages.empty());
            }
            EXPECT_TRUE(changes) << item.name << ": parameter " << number;
        }
    }
}

TEST_F(ItemRoutine, TheDrawingStandsWhereTheUserClicked) {
    for (const SampleItem& item : SampleItems()) {
        ASSERT_TRUE(Make(item.name, item.variants.front()));
        const Box atOrigin = *drawing.Extents();
        drawing.Clear();
        clicked = LispPoint{1000, -500, 0};
        ASSERT_TRUE(Run("(" + item.name + ")"));
        const Box moved = *drawing.Extents();
        EXPECT_NEAR(moved.low.x, atOrigin.low.x + 1000, 1e-6) << item.name;
        EXPECT_NEAR(moved.low.y, atOrigin.low.y - 500, 1e-6) << item.name;
        EXPECT_NEAR(moved.high.x, atOrigin.high.x + 1000, 1e-6) << item.name;
        EXPECT_NEAR(moved.high.y, atOrigin.high.y - 500, 1e-6) << item.name;
    }
}

TEST_F(ItemRoutine, TheWholeDrawingIsShownOnceItIsDone) {
    for (const SampleItem& item : SampleItems()) {
        Run("(setq fits 0)");
        Run("(defun draw-fit () (setq fits (1+ fits)))");
        ASSERT_TRUE(Make(item.name, item.variants.front()));
        EXPECT_TRUE(Run("(= fits 1)")) << item.name;
    }
}

TEST_F(ItemRoutine, WhoGivesUpOnTheWayFindsNothingDrawn) {
    for (const SampleItem& item : SampleItems()) {
        const std::string call = "(" + item.name + ")";
        Load(item.name);
        chosen.clear();
        EXPECT_FALSE(Run(call));
        EXPECT_TRUE(shown.empty()) << "no dialog after Cancel in the choice";
        chosen = item.variants.front();
        presses = false;
        EXPECT_FALSE(Run(call));
        EXPECT_TRUE(questions.empty()) << "no question after Cancel in the dialog";
        presses = true;
        EXPECT_FALSE(Run(call));
        EXPECT_EQ(questions.size(), 1u) << "Escape in answer to the question";
        EXPECT_TRUE(drawing.Entities().empty()) << item.name;
        EXPECT_TRUE(messages.empty()) << item.name;
        shown.clear();
        questions.clear();
    }
}

TEST_F(ItemRoutine, TheQuestionForThePointNamesTheItemByItsTitle) {
    const auto questionFor = [this](const std::string& title) {
        std::ifstream before(folder / "door.TXT");
        std::string first;
        std::string second;
        std::getline(before, first);
        std::getline(before, second);
        const std::string rest{std::istreambuf_iterator<char>(before), {}};
        before.close();
        std::ofstream(folder / "door.TXT") << first << '\n' << title << '\n' << rest;
        Run("(door)");
        return questions.back();
    };
    Load("door");
    chosen = "single";
    EXPECT_EQ(questionFor("<<2001>>"), L"Insertion point of door: ") << "without texts";
    EXPECT_EQ(questionFor("My door"), L"Insertion point of My door: ");
    EXPECT_EQ(questionFor(""), L"Insertion point of door: ");
    UseTexts("en");
    EXPECT_EQ(questionFor("<<2001>>"), L"Insertion point of Hinged door: ");
    EXPECT_EQ(questionFor("a <<2001>> b"), L"Insertion point of Hinged door: ");
    EXPECT_EQ(questionFor("<<9>>"), L"Insertion point of door: ");
    UseTexts("it");
    EXPECT_EQ(questionFor("<<2001>>"), L"Punto di inserimento di Porta a battente: ");
    Run("(item-place \"other\" nil)");
    EXPECT_EQ(questions.back(), L"Punto di inserimento di other: ");
}

TEST_F(ItemRoutine, EscapeLeavesTheUsersOwnErrorFunctionAlone) {
    Load("door");
    chosen = "single";
    Run("(setq *error* 5)");
    // The user's own is no function, so calling it would be another error.
    EXPECT_FALSE(Run("(door)"));
    EXPECT_TRUE(Run("(= *error* 5)"));
}

TEST_F(ItemRoutine, ValuesThatCannotBeBuiltAreRefusedWithTheirReason) {
    const struct {
        const char* item;
        const char* variant;
        std::map<int, std::string> values;
        const wchar_t* reason;
    } cases[] = {
        {"door", "single", {{1, "0"}}, L"Parameter 1 must be more than 0."},
        {"door", "single", {{6, "-20"}}, L"Parameter 6 must not be negative."},
        {"door", "single", {{2, "2e6"}}, L"Parameter 2 must not be more than 1000000."},
        {"door", "single", {{7, "3"}}, L"Parameter 7 must lie between 1 and 2."},
        {"door", "single", {{9, "181"}}, L"Parameter 9 must lie between 0 and 180."},
        {"door", "single", {{21, "450"}}, L"Parameter 21: the stiles are wider than the leaf."},
        {"door", "bifold", {{7, "3"}}, L"A folding door has an even number of leaves."},
        {"door", "arched", {{1, "4200"}}, L"Parameter 2: the leaf is too low for its arch."},
        {"window", "casement", {{5, "231"}}, L"Parameter 5: set back so far, the frame leaves the wall."},
        {"window",
         "casement",
         {{1, "300"}},
         L"Parameter 1: the window is too narrow for its sashes and bars."},
        {"window",
         "arched",
         {{20, "601"}},
         L"Parameter 20: the arch must rise above the frame's width, by half the width at most."},
        {"staircase",
         "straight",
         {{2, "15"}},
         L"Parameter 2: each step would rise 192.7, more than the largest rise. Take more risers."},
        {"staircase", "half", {{5, "16"}}, L"Parameter 5: at least two risers belong to each flight."},
    };
    for (const auto& [item, variant, values, reason] : cases) {
        typed = values;
        EXPECT_FALSE(Make(item, variant));
        EXPECT_EQ(messages, std::vector<std::wstring>{reason}) << item << ' ' << variant;
        EXPECT_TRUE(drawing.Entities().empty()) << item << ' ' << variant;
    }
}

TEST_F(ItemRoutine, ARefusedValueBringsTheDialogBackWithWhatWasTyped) {
    typed = {{1, "850"}, {9, "181"}};
    typedAgain = {{9, "80"}};
    EXPECT_TRUE(Make("door", "single"));
    EXPECT_EQ(messages, std::vector<std::wstring>{L"Parameter 9 must lie between 0 and 180."});
    EXPECT_EQ(shown[9], "181") << "when the dialog came back";
    EXPECT_EQ(shown[1], "850");
    EXPECT_EQ(Arcs(850), 1) << "drawn with the values of the second time";
}

TEST_F(ItemRoutine, ARefusedValueDoesNotBecomeTheDefault) {
    for (const SampleItem& item : SampleItems()) {
        Load(item.name);
        remembers = true;
        const std::filesystem::path templateFile = folder / (item.name + ".TXT");
        const std::string before = BytesOf(templateFile);
        typed = {{1, "0"}};
        EXPECT_FALSE(Make(item.name, item.variants.front()));
        EXPECT_EQ(messages.size(), 1u) << item.name;
        EXPECT_EQ(BytesOf(templateFile), before) << item.name;
    }
}

TEST_F(ItemRoutine, ARightValueBecomesTheDefaultAfterARefusedOne) {
    Load("window");
    remembers = true;
    typed = {{1, "0"}};
    typedAgain = {{1, "1300"}};
    EXPECT_TRUE(Make("window", "tilt"));
    EXPECT_NE(BytesOf(folder / "window.TXT").find("$1 = \"<<1601>>\"D1300\r\n"), std::string::npos);
}

TEST_F(ItemRoutine, ARefusalNamesTheLabelInTheLanguageOfTheTexts) {
    typed = {{9, "181"}};
    UseTexts("en");
    Make("door", "single");
    EXPECT_EQ(messages, std::vector<std::wstring>{L"Opening angle must lie between 0 and 180."});
    UseTexts("it");
    Make("door", "single");
    EXPECT_EQ(messages,
              std::vector<std::wstring>{L"Angolo di apertura: il valore deve essere compreso tra 0 e 180."});
    typed = {{2, "0"}};
    Make("door", "single");
    EXPECT_EQ(messages, std::vector<std::wstring>{L"Altezza anta: il valore deve essere maggiore di 0."})
        << "without the mark of a read-only row";
    typed = {{2, "15"}};
    Make("staircase", "straight");
    EXPECT_EQ(messages, std::vector<std::wstring>{
                            L"Numero alzate: ogni gradino salirebbe di 192.7, più dell'alzata massima. "
                            L"Servono più alzate."});
}

TEST_F(ItemRoutine, WhateverIsTypedIsDrawnOrRefusedAsAWhole) {
    const char* const values[] = {"0",  "-1",    "1",   "2",    "7",   "45",
                                  "99", "0.001", "300", "2000", "1e6", "1e300"};
    std::mt19937 random(20240315);
    for (const SampleItem& item : SampleItems()) {
        Load(item.name);
        int drawn = 0;
        for (int run = 0; run < 120; ++run) {
            typed.clear();
            for (auto changes = 1 + random() % 3; changes > 0; --changes) {
                typed[1 + static_cast<int>(random() % 27)] = values[random() % std::size(values)];
            }
            const bool isMade = Make(item.name, item.variants[random() % item.variants.size()]);
            EXPECT_EQ(messages.size(), isMade ? 0u : 1u) << item.name << ", run " << run;
            EXPECT_EQ(drawing.Entities().empty(), !isMade) << item.name << ", run " << run;
            drawn += isMade;
        }
        EXPECT_GT(drawn, 10) << item.name;
        EXPECT_LT(drawn, 110) << item.name;
    }
}

TEST_F(ItemRoutine, TheGuideNamesFunctionsWithTheirParameters) {
    Load("door");
    std::ifstream guide(SAMPLES_DIR "/README.md");
    int functions = 0;
    for (std::string line; std::getline(guide, line);) {
        if (!line.starts_with("| `(item-")) {
            continue;
        }
        for (std::size_t at = 0; (at = line.find("`(item-", at)) != std::string::npos;) {
            const std::string call = line.substr(at + 2, line.find(")`", at) - at - 2);
            at += call.size();
            ++functions;
            const std::string name = call.substr(0, call.find(' '));
            EXPECT_EQ(ParameterCount(name), std::ranges::count(call, ' ')) << call;
        }
    }
    EXPECT_GT(functions, 15);
}

TEST_F(ItemRoutine, AMissingTemplateIsNamed) {
    Load("window");
    std::filesystem::remove(folder / "window.TXT");
    chosen = "tilt";
    EXPECT_FALSE(Run("(window)"));
    EXPECT_EQ(messages,
              std::vector<std::wstring>{L"The template window.TXT is in none of the search folders."});
}

TEST_F(ItemRoutine, AWorkingFileThatLacksAValueIsRefused) {
    Load("window");
    std::ofstream(folder / "window.TXT", std::ios::binary) << "Window\r\n<<2002>>\r\nVAR\r\n"
                                                              "$1 = \"<<1601>>\"D 1200\r\nEND_VAR\r\n";
    chosen = "tilt";
    EXPECT_FALSE(Run("(window)"));
    EXPECT_EQ(messages, std::vector<std::wstring>{L"The working file lacks a value: Parameter 2."});
}

TEST_F(ItemRoutine, TheWorkingFileIsTheTemplateUnderALineOfItsOwn) {
    Load("staircase");
    chosen = "half";
    presses = false;
    Run("(staircase)");
    const std::string original = BytesOf(folder / "staircase.TXT");
    EXPECT_EQ(BytesOf(folder / "staircase_TMP.TXT"),
              "(working file of staircase.lsp)\r\n" + original.substr(original.find('\n') + 1));
}

TEST_F(ItemRoutine, TheDoorsWorkingFileAmongTheSamplesIsTheRoutines) {
    Load("door");
    chosen = "single";
    presses = false;
    Run("(door)");
    EXPECT_EQ(BytesOf(folder / "door_TMP.TXT"), BytesOf(SAMPLES_DIR "/door/door_TMP.TXT"));
}

}  // namespace
