#include "devhost/app/TextModules.h"

#include <algorithm>
#include <filesystem>

#include "devhost/UserError.h"
#include "devhost/app/SearchPath.h"

namespace devhost {

namespace {

namespace fs = std::filesystem;

constexpr wchar_t kFileName[] = L"TavrinRes.dll";

class CDataFile {
public:
    explicit CDataFile(const std::wstring& path)
        : m_module(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
    ~CDataFile() {
        if (m_module != nullptr) {
            FreeLibrary(m_module);
        }
    }
    CDataFile(const CDataFile&) = delete;
    CDataFile& operator=(const CDataFile&) = delete;

    HMODULE Get() const { return m_module; }

private:
    HMODULE m_module;
};

// Takes the first and ends the enumeration.
BOOL CALLBACK TakeLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR result) {
    *reinterpret_cast<int*>(result) = language;
    return FALSE;
}

BOOL CALLBACK TakeBlock(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR result) {
    EnumResourceLanguagesW(module, type, name, TakeLanguage, result);
    return FALSE;
}

// The language of the module's first text; -1 when it has no texts or is not a module.
int LanguageOf(const std::wstring& path) {
    int language = -1;
    const CDataFile file(path);
    if (file.Get() != nullptr) {
        EnumResourceNamesW(file.Get(), RT_STRING, TakeBlock, reinterpret_cast<LONG_PTR>(&language));
    }
    return language;
}

std::wstring NameOfLanguage(int language) {
    wchar_t name[100] = {};
    const LCID locale = MAKELCID(static_cast<WORD>(language), SORT_DEFAULT);
    if (PRIMARYLANGID(language) == LANG_NEUTRAL ||
        GetLocaleInfoW(locale, LOCALE_SENGLANGUAGE, name, 100) == 0) {
        return L"Neutral";
    }
    return name;
}

void AppendModule(std::vector<TextModule>& modules, const std::wstring& path) {
    if (IndexOfPath(modules, path) || !IsFile(path)) {
        return;
    }
    if (const int language = LanguageOf(path); language >= 0) {
        modules.push_back({path, NameOfLanguage(language)});
    }
}

// Where several modules have one language their folders tell them apart.
void DistinguishTitles(std::vector<TextModule>& modules) {
    std::vector<std::wstring> titles;
    for (const TextModule& module : modules) {
        titles.push_back(module.title);
    }
    for (TextModule& module : modules) {
        if (std::count(titles.begin(), titles.end(), module.title) > 1) {
            module.title += L" (" + fs::path(module.path).parent_path().wstring() + L")";
        }
    }
}

// A new folder for temporary files.
std::wstring NewFolder() {
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    for (unsigned number = 0; number < 1000 && !error; ++number) {
        const fs::path folder =
            parent / (L"DevHost-" + std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(number));
        if (fs::create_directory(folder, error)) {
            return folder.wstring();
        }
    }
    throw CUserError(L"no folder for temporary files can be created: check the environment variable TEMP");
}

void RemoveCopy(const std::wstring& copy) {
    std::error_code ignored;
    fs::remove_all(fs::path(copy).parent_path(), ignored);
}

// A full path of its own, so that the copies of several choices can be told apart.
std::wstring CopyOf(const std::wstring& path) {
    std::wstring copy = NewFolder() + L'\\' + kFileName;
    if (CopyFileW(path.c_str(), copy.c_str(), FALSE) == 0) {
        RemoveCopy(copy);
        throw CUserError(L"the texts '" + path + L"' cannot be read: give --texts a TavrinRes.dll");
    }
    return copy;
}

// The path of the library of that name that the plug-in would find; empty when none is loaded.
std::wstring LoadedPath() {
    std::wstring path(32'768, L'\0');
    const HMODULE module = GetModuleHandleW(kFileName);
    path.resize(module != nullptr ? GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()))
                                  : 0);
    return path;
}

// The plug-in does not release its texts, not even when it is unloaded.
void UnloadCompletely(const std::wstring& path) {
    while (const HMODULE module = GetModuleHandleW(path.c_str())) {
        if (FreeLibrary(module) == 0) {
            return;
        }
    }
}

CUserError NotLoaded(const std::wstring& path, DWORD error) {
    constexpr int kBits = 8 * sizeof(void*);
    return CUserError(L"the texts '" + path + L"' cannot be loaded: " +
                      (error == ERROR_BAD_EXE_FORMAT
                           ? L"this DevHost needs a " + std::to_wstring(kBits) + L"-bit module"
                           : L"system error " + std::to_wstring(error)));
}

}  // namespace

std::vector<TextModule> FindTextModules(const std::wstring& file, const std::vector<std::wstring>& folders) {
    std::vector<TextModule> modules;
    AppendModule(modules, file);
    for (const std::wstring& folder : folders) {
        AppendModule(modules, folder + L'\\' + kFileName);
        std::vector<std::wstring> subfolders;
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            subfolders.push_back(entry->path().wstring());
        }
        std::sort(subfolders.begin(), subfolders.end());
        for (const std::wstring& subfolder : subfolders) {
            AppendModule(modules, subfolder + L'\\' + kFileName);
        }
    }
    DistinguishTitles(modules);
    return modules;
}

std::size_t IndexOfUserLanguage(const std::vector<TextModule>& modules) {
    const auto found = std::find_if(modules.begin(), modules.end(), [](const TextModule& module) {
        return PRIMARYLANGID(LanguageOf(module.path)) == PRIMARYLANGID(GetUserDefaultUILanguage());
    });
    return found != modules.end() ? static_cast<std::size_t>(found - modules.begin()) : 0;
}

std::optional<std::size_t> IndexOfPath(const std::vector<TextModule>& modules, const std::wstring& path) {
    for (std::size_t i = 0; i < modules.size(); ++i) {
        if (CompareStringOrdinal(modules[i].path.c_str(), -1, path.c_str(), -1, TRUE) == CSTR_EQUAL) {
            return i;
        }
    }
    return std::nullopt;
}

CChosenTexts::~CChosenTexts() {
    if (!m_copy.empty()) {
        UnloadCompletely(m_copy);
        RemoveCopy(m_copy);
    }
}

void CChosenTexts::Use(const std::wstring& path) {
    const std::wstring full = FullPath(path);
    if (!IsFile(full)) {
        throw CUserError(L"the texts '" + path + L"' do not exist: give --texts a TavrinRes.dll");
    }
    const std::wstring before = LoadedPath();
    const std::wstring copy = CopyOf(full);
    if (LoadLibraryW(copy.c_str()) == nullptr) {
        const DWORD error = GetLastError();
        RemoveCopy(copy);
        throw NotLoaded(path, error);
    }
    if (!before.empty()) {
        UnloadCompletely(before);
    }
    if (!m_copy.empty()) {
        RemoveCopy(m_copy);
    }
    m_copy = copy;
    m_path = full;
}

void CChosenTexts::Reload() {
    if (!m_path.empty()) {
        Use(m_path);
    }
}

}  // namespace devhost
