// DevHost.exe: reads the command line, brings host and plug-in together, evaluates, and accounts for what
// the plug-in leaves behind.
#include <windows.h>

#include <string>
#include <vector>

#include "CrashReport.h"
#include "ExitStatus.h"
#include "HeapLibrary.h"
#include "Host.h"
#include "Options.h"
#include "PlugIn.h"
#include "Printer.h"
#include "Reader.h"

namespace {

std::vector<CValue> ReadAll(const std::wstring& text) {
    std::vector<CValue> expressions;
    CReader reader(text);
    while (const auto expression = reader.Read())
        expressions.push_back(*expression);
    if (expressions.empty())
        throw CLispError(L"there is nothing to evaluate");
    return expressions;
}

// The expressions of all --eval options, read before anything is loaded.
std::vector<CValue> ReadEvaluations(const SOptions& options) {
    std::vector<CValue> expressions;
    for (const std::wstring& text : options.evaluations) {
        try {
            for (const CValue& expression : ReadAll(text))
                expressions.push_back(expression);
        } catch (const CLispError& error) {
            throw CUserError(L"--eval '" + text + L"': " + error.Text());
        }
    }
    return expressions;
}

void EvaluateAndPrint(CHost& host, CTextOutput& output, const CValue& expression) {
    const CLispResult result = host.Evaluate(expression);
    output.Line(result ? Print(*result) : L"; no result");
}

// Evaluates in order up to the first failure. True when there was none.
bool EvaluateAll(CHost& host, CTextOutput& output, const std::vector<CValue>& expressions) {
    try {
        for (const CValue& expression : expressions)
            EvaluateAndPrint(host, output, expression);
        return true;
    } catch (const CReportedError&) {
        return false;
    } catch (const CLispError& error) {
        output.Error(error.Text());
        return false;
    }
}

// Takes LISP from the prompt until the window is closed.
void Converse(CHost& host, CTextOutput& output, CMainWindow& window) {
    window.SetCommandHandler([&](const std::wstring& text) {
        output.Line(text);
        try {
            EvaluateAll(host, output, ReadAll(text));
        } catch (const CLispError& error) {
            output.Error(error.Text());
        }
    });
    window.Run();
}

// True when the plug-in went away in good order and holds no block of the host's heap.
bool Unload(CPlugIn& plugIn, const CHeapLibrary& heap, CTextOutput& output) {
    bool inOrder = true;
    try {
        plugIn.Unload();
    } catch (const CUserError& error) {
        output.Error(error.Text());
        inOrder = false;
    }
    const std::size_t blocks = heap.LiveBlocks();
    std::wstring report = L"; heap: " + std::to_wstring(blocks) + L" blocks held";
    if (blocks != 0)
        report += L", " + std::to_wstring(heap.LiveBytes()) + L" bytes";
    output.Line(report);
    heap.PrintLive();
    return inOrder && blocks == 0;
}

std::wstring ProgramFolder() {
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), DWORD(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

bool Run(const SOptions& options, CTextOutput& output) {
    const std::vector<CValue> expressions = ReadEvaluations(options);
    const CSearchPath searchPath(options.searchFolders);
    const std::wstring folder = ProgramFolder();
    const SLinearFormat format = {options.lunits, options.luprec};

    const CHeapLibrary heap(folder, options.checkHeap);
    CDrawing drawing;
    CMainWindow window(drawing);
    CHost host(window, output, searchPath, format);
    CPlugIn plugIn(host, options.plugIn.empty() ? folder + L"\\TavrinWnd.dll" : options.plugIn);

    output.SetListener([&](std::wstring_view line) { window.AddOutput(line); });
    window.SetFormat(format.lunits, format.luprec);
    window.Show();
    bool succeeded = true;
    if (expressions.empty())
        Converse(host, output, window);
    else
        succeeded = EvaluateAll(host, output, expressions);
    output.SetListener(nullptr);
    return Unload(plugIn, heap, output) && succeeded;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    InstallCrashReport();
    CTextOutput output;
    try {
        const std::vector<std::wstring> given(arguments + 1, arguments + count);
        const SOptions options = ParseOptions(given);
        if (options.help) {
            output.Help(HelpText());
            return kExitDone;
        }
        return Run(options, output) ? kExitDone : kExitFailed;
    } catch (const CUserError& error) {
        output.Error(error.Text());
    } catch (const std::exception&) {
        output.Error(L"there is not enough memory");
    }
    return kExitFailed;
}
