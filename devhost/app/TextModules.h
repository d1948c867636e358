// The resource modules TavrinRes.dll with the texts of items: which there are, and which one the plug-in
// finds.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace devhost {

struct TextModule {
    std::wstring path;   // absolute
    std::wstring title;  // its language in English, with its folder where several have the same
};

// The file, which may be empty, and then the modules of each folder in turn: FOLDER\TavrinRes.dll,
// FOLDER\*\TavrinRes.dll in the order of the names. Files that are no modules with texts are left out, and so
// is a file that was found already. All paths are absolute.
std::vector<TextModule> FindTextModules(const std::wstring& file, const std::vector<std::wstring>& folders);

// The index of the first module in the user's own language, otherwise 0.
std::size_t IndexOfUserLanguage(const std::vector<TextModule>& modules);

// The index of the module with that path.
std::optional<std::size_t> IndexOfPath(const std::vector<TextModule>& modules, const std::wstring& path);

// The texts that were chosen instead of those that the system finds. The plug-in loads TavrinRes.dll by its
// bare name, which finds a library of that name that is loaded already; so a copy is loaded before. The file
// itself stays free to be replaced.
class CChosenTexts {
public:
    CChosenTexts() = default;
    ~CChosenTexts();
    CChosenTexts(const CChosenTexts&) = delete;
    CChosenTexts& operator=(const CChosenTexts&) = delete;

    // Loads the file and unloads every TavrinRes.dll that was loaded before. No plug-in may be loaded. Throws
    // CUserError, with everything as it was, when the file is not a module for this process.
    void Use(const std::wstring& path);
    // Loads the chosen file again, which may have changed; does nothing before Use. Conditions as for Use.
    void Reload();

    // The absolute path of the chosen file; empty before Use.
    const std::wstring& Path() const { return m_path; }

private:
    std::wstring m_path;
    std::wstring m_copy;  // the full path of the loaded copy
};

}  // namespace devhost
