#include "tools/newitem/NewItem.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>

#include "encoding/Encoding.h"
#include "lisp/Builtins.h"
#include "tools/files/Files.h"
#include "tools/newitem/NewItemPictures.h"

namespace tavrin::tools {

namespace {

constexpr unsigned kRange = 100;
constexpr unsigned kHighestText = 65535;
constexpr std::size_t kLongestName = 15;  // as a title it fits into the dialog's header

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return lower;
}

bool IsLetter(char character) {
    return std::isalpha(static_cast<unsigned char>(character)) != 0;
}

bool IsNameCharacter(char character) {
    return IsLetter(character) || (character >= '0' && character <= '9') || character == '-' ||
           character == '_';
}

template <class Entry>
bool Holds(std::span<const Entry> functions, std::string_view name) {
    return std::any_of(functions.begin(), functions.end(), [&](const Entry& function) {
        return LowerCase(encoding::EncodeUtf8(function.name)) == name;
    });
}

// Whether a routine of this name would replace a function of LISP, of the host or of item.lsp.
bool IsFunction(const std::string& name) {
    for (const auto functions : {lisp::ControlFunctions(), lisp::ArithmeticFunctions(), lisp::MathFunctions(),
                                 lisp::PredicateFunctions(), lisp::ListFunctions(), lisp::TextFunctions(),
                                 lisp::ConversionFunctions(), lisp::GeometryFunctions(),
                                 lisp::OutputFunctions(), lisp::FileFunctions(), lisp::HostFunctions()}) {
        if (Holds(functions, name)) {
            return true;
        }
    }
    return Holds(lisp::ControlForms(), name) || name.starts_with("draw-") || name.starts_with("item-") ||
           name.starts_with("tavrin") || name == "t" || name == "nil";
}

// Names that the system or the routines use for something else.
bool IsReserved(const std::string& name) {
    constexpr std::array<std::string_view, 7> kNames = {"aux", "con",    "item", "nul",
                                                        "prn", "slides", "texts"};
    return std::find(kNames.begin(), kNames.end(), name) != kNames.end();
}

std::string TemplateOf(const std::string& name, unsigned firstText) {
    const auto placeholder = [&](unsigned index) { return "<<" + std::to_string(firstText + index) + ">>"; };
    return name + "\n" + placeholder(0) + "\nVAR\n$1 = \"" + placeholder(1) + "\"D 600\n$2 = \"" +
           placeholder(2) + "\"D 800\nEND_VAR\n";
}

// The word ITEM stands for the name.
constexpr const char* kRoutine = R"(; The routine of the item ITEM: a rectangle, seen from the front.
; 1 width  2 height

(load "item.lsp")

; Each step gives nil when the user gives up: then nothing is drawn.
(defun ITEM (/ *error* variant values at)
  (setq *error* item-error)
  (and (setq variant (item-choose "ITEM" '("plain" "divided")))
       (setq values (item-edit "ITEM" nil 'ITEM-check))
       (setq at (item-place "ITEM" '(lambda (at) (ITEM-draw variant values at))))
       (ITEM-draw variant values at)
       (item-show)))

; Whether the values can be drawn. If not, the user reads why, and the dialog opens again with what was typed.
(defun ITEM-check (values)
  (and (item-complete values 2)
       (item-positive values '(1 2))))

; AT is the lower left corner.
(defun ITEM-draw (variant values at / width height size)
  (setq width  (item-of values 1)
        height (item-of values 2)
        size   (* 0.05 (max width height)))
  (item-box at 0 0 width height)
  (if (= variant "divided")
      (item-line at (* 0.5 width) 0 (* 0.5 width) height))
  (item-dimension-x at 0 width (* -2 size) size)
  (item-dimension-y at 0 height (* -2 size) size)
  T)
)";

std::string Named(std::string text, const std::string& name) {
    constexpr std::string_view kMark = "ITEM";
    for (std::size_t at = text.find(kMark); at != std::string::npos;
         at = text.find(kMark, at + name.size())) {
        text.replace(at, kMark.size(), name);
    }
    return text;
}

std::wstring TitleOf(const std::string& name) {
    std::wstring title(name.begin(), name.end());
    std::replace_if(
        title.begin(), title.end(), [](wchar_t letter) { return letter == L'-' || letter == L'_'; }, L' ');
    title.front() = static_cast<wchar_t>(std::toupper(static_cast<unsigned char>(name.front())));
    return title;
}

bool IsItalian(unsigned languageId) {
    constexpr unsigned kPrimaryLanguage = 0x3FF;
    constexpr unsigned kItalian = 0x10;
    return (languageId & kPrimaryLanguage) == kItalian;
}

struct SharedText {
    unsigned number;
    const wchar_t* english;
    const wchar_t* italian;
};

// As the scripts of the sample items have them.
constexpr SharedText kSharedTexts[] = {
    {5101, L"The working file lacks a value: %1.", L"Nel file di lavoro manca il valore: %1."},
    {5102, L"%1 must not be negative.", L"%1: il valore non pu\u00F2 essere negativo."},
    {5103, L"%1 must not be more than 1000000.", L"%1: il valore non pu\u00F2 superare 1000000."},
    {5104, L"%1 must be more than 0.", L"%1: il valore deve essere maggiore di 0."},
    {5105, L"%1 must lie between %2 and %3.", L"%1: il valore deve essere compreso tra %2 e %3."},
    {5106, L"Parameter %1", L"Parametro %1"},
    {5107, L"Insertion point of %1: ", L"Punto di inserimento di %1: "}};

}  // namespace

std::string ObjectionToName(std::string_view name) {
    if (name.empty() || !IsLetter(name.front()) || !std::all_of(name.begin(), name.end(), IsNameCharacter)) {
        return "a name consists of the letters a to z, digits, - and _, and begins with a letter";
    }
    if (name.size() > kLongestName) {
        return "a name has at most " + std::to_string(kLongestName) + " characters";
    }
    const std::string lower = LowerCase(name);
    if (IsReserved(lower) || lower.ends_with("_tmp")) {
        return "this name is reserved, choose another one";
    }
    if (IsFunction(lower)) {
        return "this is the name of a LISP function, choose another one";
    }
    return {};
}

std::vector<NewFile> FilesOfNewItem(const std::string& name, unsigned firstText) {
    const std::string base = name + "/" + name;
    const std::string slide = name + "/slides/" + name;
    const BoxPicture picture = PictureOfNewItem();
    const BoxPicture plain = SlideOfNewItem(false);
    const BoxPicture divided = SlideOfNewItem(true);
    return {{base + ".TXT", TemplateOf(name, firstText)},
            {base + ".lsp", Named(kRoutine, name)},
            {base + ".svg", SvgOf(picture)},
            {base + ".png", PngOf(picture)},
            {slide + "_plain_t.svg", SvgOf(plain)},
            {base + "_plain_t.png", PngOf(plain)},
            {slide + "_divided_t.svg", SvgOf(divided)},
            {base + "_divided_t.png", PngOf(divided)}};
}

std::vector<NewText> TextsOfNewItem(const std::string& name, unsigned firstText, unsigned languageId) {
    const bool isItalian = IsItalian(languageId);
    return {{firstText, TitleOf(name)},
            {firstText + 1, isItalian ? L"Larghezza" : L"Width"},
            {firstText + 2, isItalian ? L"Altezza" : L"Height"}};
}

std::vector<NewText> TextsOfSharedRoutine(std::string_view routine, unsigned languageId) {
    std::vector<NewText> texts;
    for (const SharedText& text : kSharedTexts) {
        if (routine.find("(item-words " + std::to_string(text.number)) != std::string_view::npos) {
            texts.push_back({text.number, IsItalian(languageId) ? text.italian : text.english});
        }
    }
    return texts;
}

unsigned FirstFreeText(const std::vector<CTextTable>& scripts, unsigned from) {
    const auto isTaken = [](const CTextTable& script, unsigned first) {
        return std::any_of(script.Texts().begin(), script.Texts().end(), [=](const TextEntry& text) {
            return text.number >= first && text.number < first + kRange - 1;
        });
    };
    const auto isShared = [](unsigned first) {
        return std::any_of(std::begin(kSharedTexts), std::end(kSharedTexts), [=](const SharedText& text) {
            return text.number >= first && text.number < first + kRange - 1;
        });
    };
    for (unsigned first = from; first + kRange <= kHighestText; first += kRange) {
        if (!isShared(first) && std::none_of(scripts.begin(), scripts.end(), [&](const CTextTable& script) {
                return isTaken(script, first);
            })) {
            return first;
        }
    }
    throw CToolError("no range of free numbers is left for the item's texts");
}

std::vector<NewFile> SharedFiles() {
    return {
        {"item.lsp", kSharedRoutine}, {"logo.png", PngOf(LogoOfItems())}, {"empty.png", PngOf(EmptySlide())}};
}

std::string NewTextScript() {
    return "// English texts of the items: string table of the module TavrinRes.dll.\n"
           "#pragma code_page(65001)\n"
           "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_UK\n\n"
           "STRINGTABLE\n"
           "BEGIN\n"
           "    1363 \"  Parameters: \"\n"
           "    5019 \"No picture was found for any of the variants.\"\n"
           "END\n";
}

}  // namespace tavrin::tools
