#include "tests/unit/samples/ItemRoutine.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "devhost/drawlisp/DrawFunctions.h"
#include "tools/texts/StringScript.h"

namespace tests {

namespace {

std::string Narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

std::wstring Wide(const std::string& text) {
    return {text.begin(), text.end()};
}

bool IsNear(double a, double b) {
    return std::abs(a - b) < 1e-6;
}

// Whether the points are the corners of an upright rectangle of this size.
bool IsBox(const PolylineEntity& line, double width, double height) {
    if (!line.closed || line.points.size() != 4) {
        return false;
    }
    const auto& [a, b, c, d] = std::tie(line.points[0], line.points[1], line.points[2], line.points[3]);
    return IsNear(a.y, b.y) && IsNear(b.x, c.x) && IsNear(c.y, d.y) && IsNear(d.x, a.x) &&
           IsNear(std::abs(b.x - a.x), width) && IsNear(std::abs(c.y - b.y), height);
}

}  // namespace

const std::vector<SampleItem>& SampleItems() {
    static const std::vector<SampleItem> items = {
        {"door", {"single", "double", "sliding", "arched", "glazed", "bifold"}},
        {"window", {"casement", "tilt", "fixed", "sliding", "arched"}},
        {"staircase", {"straight", "landing", "quarter", "half"}}};
    return items;
}

ItemRoutine::ItemRoutine() {
    std::string name = (std::filesystem::temp_directory_path() / "item-XXXXXX").string();
    folder = mkdtemp(name.data());
    DefineDrawFunctions(m_evaluator, drawing);
    m_evaluator.Define(L"TAVRINSELMASK", [this](auto arguments) { return PlayChoice(arguments); });
    m_evaluator.Define(L"TAVRINWND", [this](auto arguments) { return PlayItemDialog(arguments); });
}

ItemRoutine::~ItemRoutine() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

void ItemRoutine::Load(const std::string& item) {
    m_item = item;
    const std::string file = item + ".TXT";
    std::filesystem::copy_file(std::filesystem::path(SAMPLES_DIR) / item / file, folder / file,
                               std::filesystem::copy_options::overwrite_existing);
    m_evaluator.Run(ReadText(Wide("(load \"" + item + ".lsp\")")));
}

void ItemRoutine::UseTexts(const std::string& language) {
    const std::string file = "TavrinRes." + language + ".rc";
    std::ifstream stream(std::filesystem::path(SAMPLES_DIR) / "texts" / file, std::ios::binary);
    std::stringstream bytes;
    bytes << stream.rdbuf();
    std::map<int, std::wstring> texts;
    for (const auto& text : tavrin::tools::ReadStringScript(file, bytes.str()).texts) {
        texts[static_cast<int>(text.number)] = text.text;
    }
    m_evaluator.Undefine(L"RES-TEXT");
    m_evaluator.Define(L"RES-TEXT", [texts](auto arguments) -> LispResult {
        const auto text = texts.find(arguments[0].AsInteger());
        return text != texts.end() ? CValue::String(text->second) : CValue();
    });
}

bool ItemRoutine::Run(const std::string& text) {
    m_openings = 0;
    try {
        const LispResult result = m_evaluator.Run(ReadText(Wide(text)));
        return result && !result->IsNil();
    } catch (const CLispCancelled&) {
        return false;
    } catch (const CLispError& error) {
        ADD_FAILURE() << Narrow(error.Text());
        return false;
    }
}

int ItemRoutine::ParameterCount(const std::string& name) const {
    const CValue value = m_evaluator.Variable(UpperCase(Wide(name)));
    if (value.Type() != VT_FUNCTION) {
        return -1;
    }
    const auto* definition = std::get_if<Definition>(&value.AsFunction()->code);
    return definition != nullptr ? static_cast<int>(definition->parameters.size()) : -1;
}

bool ItemRoutine::Make(const std::string& item, const std::string& variant) {
    if (m_item != item) {
        Load(item);
    }
    drawing.Clear();
    messages.clear();
    chosen = variant;
    clicked = LispPoint();
    return Run("(" + item + ")");
}

int ItemRoutine::Boxes(double width, double height) const {
    int count = 0;
    for (const Entity& entity : drawing.Entities()) {
        const auto* line = std::get_if<PolylineEntity>(&entity);
        count += line != nullptr && IsBox(*line, width, height);
    }
    return count;
}

int ItemRoutine::Arcs(double radius) const {
    int count = 0;
    for (const Entity& entity : drawing.Entities()) {
        const auto* arc = std::get_if<ArcEntity>(&entity);
        count += arc != nullptr && IsNear(arc->radius, radius);
    }
    return count;
}

bool ItemRoutine::HasText(const std::wstring& text) const {
    for (const Entity& entity : drawing.Entities()) {
        const auto* shownText = std::get_if<TextEntity>(&entity);
        if (shownText != nullptr && shownText->text.find(text) != std::wstring::npos) {
            return true;
        }
    }
    return false;
}

std::optional<std::wstring> ItemRoutine::FindFile(const std::wstring& name) {
    const std::filesystem::path samples(SAMPLES_DIR);
    for (const auto& directory : {folder, samples / m_item, samples}) {
        // The template alone is there to be written to.
        const bool isTemplate = name.ends_with(L".TXT");
        if (isTemplate == (directory == folder) && std::filesystem::exists(directory / name)) {
            return (directory / name).wstring();
        }
    }
    return std::nullopt;
}

std::shared_ptr<CLispFile> ItemRoutine::OpenFile(const std::wstring& name, EFileMode mode) {
    return CLispFile::Open(name, mode);
}

CValue ItemRoutine::GetVariable(const std::wstring& name) {
    return name == L"LUNITS" || name == L"LUPREC" ? CValue::Integer(2) : CValue();
}

LispAnswer ItemRoutine::Ask(const std::wstring& prompt, std::optional<LispPoint>, EQuestion) {
    questions.push_back(prompt);
    LispAnswer answer;
    if (clicked) {
        answer.kind = ANSWER_POINT;
        answer.point = *clicked;
    }
    return answer;
}

LispResult ItemRoutine::PlayChoice(std::span<const CValue> arguments) {
    offered.clear();
    for (const CValue& name : arguments.subspan(2)) {
        offered.push_back(Narrow(name.AsString()));
    }
    if (chosen.empty()) {
        return CValue();
    }
    const CValue answer[] = {CValue::Integer(100), CValue::String(Wide(m_item + "_" + chosen))};
    return CValue::List(answer);
}

LispResult ItemRoutine::PlayItemDialog(std::span<const CValue> arguments) {
    const std::string working = Narrow(arguments[0].AsString()) + "_TMP.TXT";
    std::ifstream before(working);
    EXPECT_TRUE(before) << working;
    std::string line, after, remembered;
    bool inBlock = false;
    shown.clear();
    const bool isBack = ++m_openings > 1;
    const auto& changes = isBack ? typedAgain : typed;
    while (std::getline(before, line)) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        const std::size_t quote = line.rfind('"');
        inBlock = line == "VAR" || (inBlock && line != "END_VAR");
        if (inBlock && line.starts_with('$') && quote != std::string::npos) {
            const int number = std::atoi(line.c_str() + 1);
            const std::size_t value = line.find_first_not_of(' ', quote + 2);
            shown[number] = line.substr(value);
            const auto change = changes.find(number);
            const std::string text = change != changes.end() ? change->second : shown[number];
            remembered += line.substr(0, quote + 2) + text + "\r\n";
            line = (line[quote + 1] == 'I' ? "$" : "#") + std::to_string(number) + " = " + text;
        } else {
            remembered += line + "\r\n";
        }
        after += line + "\r\n";
    }
    if (!presses || (isBack && typedAgain.empty())) {
        return CValue();
    }
    if (remembers) {
        std::ofstream(Narrow(arguments[0].AsString()) + ".TXT", std::ios::binary) << remembered;
    }
    std::ofstream(working, std::ios::binary) << after;
    return CValue::Integer(0);
}

}  // namespace tests
