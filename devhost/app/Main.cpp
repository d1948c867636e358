// DevHost.exe: parses the command line, loads the plug-in, evaluates, and reports the memory that the plug-in
// did not free.
#include <windows.h>

#include <shellapi.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "devhost/Libraries.h"
#include "devhost/app/CrashReport.h"
#include "devhost/app/ExitStatus.h"
#include "devhost/app/HeapLibrary.h"
#include "devhost/app/Host.h"
#include "devhost/app/HostFunctions.h"
#include "devhost/app/ItemMenu.h"
#include "devhost/app/LispConsole.h"
#include "devhost/app/PlugIn.h"
#include "devhost/app/Session.h"
#include "devhost/app/TextModules.h"
#include "devhost/drawing/SvgWriter.h"
#include "devhost/drawlisp/DrawFunctions.h"
#include "devhost/options/Options.h"
#include "encoding/Encoding.h"
#include "handles/ComApartment.h"
#include "lisp/OneLine.h"

namespace devhost {

namespace {

// The part of the stack (its size is in CMakeLists.txt) that LISP may use.
constexpr std::size_t kLispStack = std::size_t{24} * 1024 * 1024;

std::wstring ProgramFolder() {
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

// The folders of items that the command line names; without any, the samples beside the program.
std::vector<std::wstring> ItemFolders(const Options& options) {
    const std::wstring samples = ProgramFolder() + L"\\samples";
    if (options.itemFolders.empty() && IsFolder(samples)) {
        return {samples};
    }
    return options.itemFolders;
}

CUserError NotWritten(const std::wstring& file) {
    return CUserError(L"the drawing cannot be written to '" + file +
                      L"': give --drawing a writable file in an existing folder");
}

// The full path of the file for the drawing, since file dialogs change the current folder. Throws CUserError
// before anything runs when its folder does not exist.
std::wstring DrawingPath(const std::wstring& file) {
    std::wstring full = FullPath(file);
    if (IsFolder(full) || !IsFolder(full.substr(0, full.find_last_of(L'\\') + 1))) {
        throw NotWritten(file);
    }
    return full;
}

// False when the file cannot be written.
bool WriteDrawing(const CDrawing& drawing, const std::wstring& path) {
    std::ofstream stream(std::filesystem::path(path), std::ios::binary);
    stream << ToSvg(drawing);
    stream.close();
    return static_cast<bool>(stream);
}

// True when the plug-in was unloaded without errors and has freed all blocks. Then a run of scripts prints no
// report.
bool Unload(CPlugIn& plugIn, const CHeapLibrary& heap, CTextOutput& output, bool quiet) {
    bool isClean = true;
    try {
        plugIn.Unload();
    } catch (const CUserError& error) {
        output.Error(error.Text());
        isClean = false;
    }
    const std::size_t blocks = heap.LiveBlocks();
    std::wstring report =
        L"; heap: " + std::to_wstring(blocks) + (blocks == 1 ? L" block held" : L" blocks held");
    if (blocks != 0) {
        report += L", " + std::to_wstring(heap.LiveBytes()) + L" bytes";
    }
    if (blocks != 0 || !quiet) {
        output.Line(report);
    }
    heap.PrintLive();
    return isClean && blocks == 0;
}

// Copies the output to the window during its lifetime.
class COutputCopy {
public:
    COutputCopy(CTextOutput& output, CMainWindow& window) : m_output(output) {
        output.SetListener([&window](std::wstring_view text) { window.AddText(text); });
    }
    ~COutputCopy() { m_output.SetListener(nullptr); }
    COutputCopy(const COutputCopy&) = delete;
    COutputCopy& operator=(const COutputCopy&) = delete;

private:
    CTextOutput& m_output;
};

// Keeps the unit formats of the window and of the system variables equal.
void ShareFormat(CSystemVariables& variables, CMainWindow& window) {
    const LinearFormat format = variables.Linear();
    window.SetFormat(format.lunits, format.luprec);
    variables.SetListener([&](LinearFormat changed) { window.SetFormat(changed.lunits, changed.luprec); });
    window.SetFormatHandler([&](int lunits, int luprec) { variables.SetLinear({lunits, luprec}); });
}

void Reload(CPlugIn& plugIn, CTextOutput& output, const std::function<void()>& changeTexts) {
    try {
        plugIn.Reload(changeTexts);
        output.Line(L"; the plug-in has been loaded again");
    } catch (const CUserError& error) {
        output.Error(error.Text());
    }
}

// The folders of texts that belong to the items.
std::vector<std::wstring> TextFolders(const std::vector<std::wstring>& itemFolders) {
    std::vector<std::wstring> folders;
    for (const std::wstring& folder : itemFolders) {
        folders.push_back(FullPath(folder + L"\\texts"));
    }
    return folders;
}

// Without the option the texts that an author keeps with the items come first, otherwise the system's choice.
void ChooseTexts(const Options& options, const std::vector<std::wstring>& itemFolders, CChosenTexts& texts,
                 CTextOutput& output) {
    if (!options.texts.empty()) {
        texts.Use(options.texts);
        return;
    }
    const std::vector<TextModule> modules = FindTextModules(L"", TextFolders(itemFolders));
    try {
        if (!modules.empty()) {
            texts.Use(modules[IndexOfUserLanguage(modules)].path);
        }
    } catch (const CUserError& error) {
        output.Error(error.Text());
    }
}

void OfferLanguages(const std::vector<std::wstring>& itemFolders, CChosenTexts& texts, CPlugIn& plugIn,
                    CTextOutput& output, CMainWindow& window) {
    std::vector<std::wstring> folders = TextFolders(itemFolders);
    folders.push_back(ProgramFolder());
    const std::vector<TextModule> modules = FindTextModules(texts.Path(), folders);
    std::vector<std::wstring> titles;
    for (const TextModule& module : modules) {
        titles.push_back(module.title);
    }
    window.SetLanguages(titles, [=, &texts, &plugIn, &output, &window](std::size_t index) {
        Reload(plugIn, output, [&] {
            texts.Use(modules[index].path);
            output.Line(L"; texts: " + modules[index].path);
        });
        window.SetLanguage(IndexOfPath(modules, texts.Path()));
    });
    // What the system finds first is beside the program.
    window.SetLanguage(
        IndexOfPath(modules, texts.Path().empty() ? ProgramFolder() + L"\\TavrinRes.dll" : texts.Path()));
}

// The start page of the documentation is in the archive that users unpack, beside the program.
void OpenDocumentation(CTextOutput& output) {
    const std::wstring page = ProgramFolder() + L"\\README.html";
    if (!IsFile(page)) {
        output.Error(L"the documentation '" + page +
                     L"' does not exist: it comes with the archive for users");
    } else if (reinterpret_cast<INT_PTR>(
                   ShellExecuteW(nullptr, L"open", page.c_str(), nullptr, nullptr, SW_SHOWNORMAL)) <= 32) {
        output.Error(L"no program opens '" + page + L"': open it in a browser");
    }
}

// Says why a dialog will have no rows before it is opened.
void WarnBeforeDialog(const std::wstring& function, std::span<const lisp::CValue> arguments,
                      const CSearchPath& searchPath, CItemCheck& check) {
    if (function != L"TAVRINWND" || arguments.empty() || arguments[0].Type() != lisp::VT_STRING) {
        return;
    }
    if (const auto path = searchPath.Find(arguments[0].AsString() + L"_TMP.TXT")) {
        check.CheckBeforeDialog(*path);
    }
}

// The menu Language and Plug-in > Reload. Modules of texts that were made meanwhile are offered too: after a
// reload, and when items are looked for again.
void KeepLanguages(const std::vector<std::wstring>& itemFolders, CChosenTexts& texts, CPlugIn& plugIn,
                   CTextOutput& output, CMainWindow& window, CItemMenu& items) {
    const auto offer = [=, &texts, &plugIn, &output, &window] {
        OfferLanguages(itemFolders, texts, plugIn, output, window);
    };
    offer();
    items.SetRescanListener(offer);
    window.SetReloadHandler([=, &texts, &plugIn, &output] {
        Reload(plugIn, output, [&] { texts.Reload(); });
        offer();
    });
}

// The commands of the menus Drawing and Help.
void SetCommands(const CDrawing& drawing, CTextOutput& output, CMainWindow& window) {
    window.SetHelpHandler([&] { OpenDocumentation(output); });
    window.SetSaveHandler([&](const std::wstring& path) {
        if (WriteDrawing(drawing, path)) {
            output.Line(L"; the drawing has been saved as " + path);
        } else {
            output.Error(L"the drawing cannot be written to '" + path + L"': choose another file");
        }
    });
}

bool AreAllScripts(const std::vector<PreparedTask>& tasks) {
    for (const PreparedTask& task : tasks) {
        if (!task.isScript) {
            return false;
        }
    }
    return !tasks.empty();
}

int Run(const Options& options, CTextOutput& output) {
    std::vector<PreparedTask> tasks;
    for (const Task& task : options.tasks) {
        tasks.push_back(Prepare(task));
    }
    CSearchPath searchPath(options.searchFolders);
    const std::vector<std::wstring> itemFolders = ItemFolders(options);
    CItemCatalog catalog(itemFolders);
    AddToSearchPath(catalog, searchPath);
    const std::wstring drawingPath = options.drawingFile.empty() ? L"" : DrawingPath(options.drawingFile);
    const std::wstring folder = ProgramFolder();

    const CHeapLibrary heap(folder, options.checkHeap);
    CDrawing drawing;
    CSystemVariables variables({options.lunits, options.luprec});
    CMainWindow window(drawing);
    CLispConsole console(window, output, searchPath, variables);
    lisp::CEvaluator evaluator(console, kLispStack);
    DefineDrawFunctions(evaluator, drawing);
    DefineHostFunctions(evaluator, window);
    CHost host(window, output, searchPath, variables, evaluator);
    CChosenTexts texts;
    ChooseTexts(options, itemFolders, texts, output);
    CPlugIn plugIn(host, options.plugIn.empty() ? folder + L"\\TavrinWnd.dll" : options.plugIn);
    CSession session(evaluator, drawing, output, window);

    auto listening = std::make_optional<COutputCopy>(output, window);
    ShareFormat(variables, window);
    CItemMenu items(catalog, searchPath, session, output, window);
    host.SetCallListener([&](const std::wstring& function, std::span<const lisp::CValue> arguments) {
        WarnBeforeDialog(function, arguments, searchPath, items.Check());
    });
    window.SetPasteHandler(lisp::OnOneLine);
    KeepLanguages(itemFolders, texts, plugIn, output, window, items);
    SetCommands(drawing, output, window);
    window.Show();
    const int status = session.RunTasks(tasks);
    if (tasks.empty() || options.stay) {
        window.SetCommandHandler([&](const std::wstring& text) { session.RunTyped(text); });
        window.SetEscapeHandler([&] { session.DropUnfinished(); });
        window.Run();
    }
    listening.reset();
    if (!drawingPath.empty() && !WriteDrawing(drawing, drawingPath)) {
        throw NotWritten(drawingPath);
    }
    const bool isClean = Unload(plugIn, heap, output, AreAllScripts(tasks));
    return status == kExitDone && !isClean ? kExitFailed : status;
}

}  // namespace

}  // namespace devhost

int wmain(int count, wchar_t** arguments) {
    using namespace devhost;
    InstallCrashReport();
    CTextOutput output;
    try {
        const std::vector<std::wstring> given(arguments + 1, arguments + count);
        const Options options = ParseOptions(given);
        if (options.help) {
            output.Help(HelpText());
            return kExitDone;
        }
        if (options.version) {
            output.Line(L"DevHost " DEVHOST_VERSION);
            return kExitDone;
        }
        // As in the CAD application: plug-ins rely on it, and so do screen readers that query their windows.
        const tavrin::handles::CComApartment apartment;
        return Run(options, output);
    } catch (const CUserError& error) {
        output.Error(error.Text());
    } catch (const std::bad_alloc&) {
        output.Error(L"out of memory");
    } catch (const std::exception& error) {
        output.Error(L"unexpected error: " + encoding::DecodeUtf8OrWindows1252(error.what()));
    }
    return kExitFailed;
}
