// The texts of the sample items in both languages.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "tests/unit/samples/ItemRoutine.h"
#include "tools/texts/StringScript.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

// The longest texts that the dialogs show in full, in letters of average width.
constexpr std::size_t kLabelLetters = 40;
constexpr std::size_t kTitleLetters = 18;

// Texts that are the module's own rather than an item's.
const std::set<unsigned> kModuleTexts = {1363, 5019};

std::string BytesOf(const std::string& file) {
    std::ifstream stream(std::string(SAMPLES_DIR "/") + file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::map<unsigned, std::wstring> TextsIn(const std::string& language) {
    const std::string file = "texts/TavrinRes." + language + ".rc";
    std::map<unsigned, std::wstring> texts;
    for (const ScriptText& text : ReadStringScript(file, BytesOf(file)).texts) {
        EXPECT_TRUE(texts.emplace(text.number, text.text).second)
            << file << ": " << text.number << " is twice";
    }
    return texts;
}

// The numbers of an item's placeholders, its title first.
std::vector<unsigned> PlaceholdersOf(const std::string& item) {
    const std::string bytes = BytesOf(item + "/" + item + ".TXT");
    const std::regex placeholder("<<([0-9]+)>>");
    std::vector<unsigned> numbers;
    for (std::sregex_iterator match(bytes.begin(), bytes.end(), placeholder), end; match != end; ++match) {
        numbers.push_back(static_cast<unsigned>(std::stoul((*match)[1])));
    }
    return numbers;
}

// The numbers of the texts that a routine shows.
void TakeNumbersIn(const std::string& routine, std::set<unsigned>& numbers) {
    const std::string bytes = BytesOf(routine);
    const std::regex call("item-words ([0-9]+)");
    for (std::sregex_iterator match(bytes.begin(), bytes.end(), call), end; match != end; ++match) {
        numbers.insert(static_cast<unsigned>(std::stoul((*match)[1])));
    }
}

class ItemTexts : public testing::TestWithParam<const char*> {
protected:
    std::map<unsigned, std::wstring> texts = TextsIn(GetParam());
};

TEST_P(ItemTexts, NameEachRowDifferentlyAndFitTheDialog) {
    for (const SampleItem& item : SampleItems()) {
        const std::vector<unsigned> numbers = PlaceholdersOf(item.name);
        ASSERT_GT(numbers.size(), 10u) << item.name;
        std::set<std::wstring> labels;
        for (const unsigned number : numbers) {
            const std::wstring& text = texts[number];
            EXPECT_FALSE(text.empty()) << number;
            EXPECT_LE(text.size(), number == numbers.front() ? kTitleLetters : kLabelLetters) << number;
            EXPECT_TRUE(labels.insert(text).second)
                << item.name << " has the label of " << number << " twice";
        }
    }
}

TEST_P(ItemTexts, HoldEveryWordOfTheRoutines) {
    std::set<unsigned> numbers;
    TakeNumbersIn("item.lsp", numbers);
    EXPECT_EQ(numbers.size(), 7u);
    for (const SampleItem& item : SampleItems()) {
        TakeNumbersIn(item.name + "/" + item.name + ".lsp", numbers);
    }
    for (const unsigned number : numbers) {
        EXPECT_FALSE(texts[number].empty()) << number;
    }
}

TEST_P(ItemTexts, AreAllUsed) {
    std::set<unsigned> used = kModuleTexts;
    for (const SampleItem& item : SampleItems()) {
        for (const unsigned number : PlaceholdersOf(item.name)) {
            used.insert(number);
        }
    }
    for (const SampleItem& item : SampleItems()) {
        TakeNumbersIn(item.name + "/" + item.name + ".lsp", used);
    }
    TakeNumbersIn("item.lsp", used);
    for (const auto& [number, text] : texts) {
        EXPECT_TRUE(used.contains(number)) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, ItemTexts, testing::Values("it", "en"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
