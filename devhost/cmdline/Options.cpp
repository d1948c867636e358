#include "devhost/cmdline/Options.h"

namespace {

// Walks over the arguments; an option takes the next one as its value.
class CArguments {
public:
    explicit CArguments(std::span<const std::wstring> arguments) : m_rest(arguments) {}

    bool AtEnd() const { return m_rest.empty(); }

    const std::wstring& Take() {
        const std::wstring& argument = m_rest.front();
        m_rest = m_rest.subspan(1);
        return argument;
    }

    const std::wstring& TakeValue(const std::wstring& option, const wchar_t* meaning) {
        if (AtEnd() || m_rest.front().empty() || m_rest.front().starts_with(L"--")) {
            throw CUserError(option + L" lacks its value: give " + meaning + L" behind it");
        }
        return Take();
    }

    short TakeNumber(const std::wstring& option, wchar_t lowest, wchar_t highest) {
        const std::wstring range = std::wstring(L"a number from ") + lowest + L" to " + highest;
        const std::wstring& value = TakeValue(option, range.c_str());
        if (value.size() != 1 || value[0] < lowest || value[0] > highest) {
            throw CUserError(option + L" does not take '" + value + L"': give " + range);
        }
        return short(value[0] - L'0');
    }

private:
    std::span<const std::wstring> m_rest;
};

}  // namespace

SOptions ParseOptions(std::span<const std::wstring> arguments) {
    SOptions options;
    CArguments rest(arguments);
    while (!rest.AtEnd() && !options.help && !options.version) {
        const std::wstring& option = rest.Take();
        if (option == L"--plugin") {
            options.plugIn = rest.TakeValue(option, L"the plug-in's file");
        } else if (option == L"--search") {
            options.searchFolders.push_back(rest.TakeValue(option, L"a folder"));
        } else if (option == L"--items") {
            options.itemFolders.push_back(rest.TakeValue(option, L"a folder of items"));
        } else if (option == L"--script") {
            options.tasks.push_back({true, rest.TakeValue(option, L"a LISP file")});
        } else if (option == L"--eval") {
            options.tasks.push_back({false, rest.TakeValue(option, L"a LISP expression")});
        } else if (option == L"--drawing") {
            options.drawingFile = rest.TakeValue(option, L"an SVG file");
        } else if (option == L"--stay") {
            options.stay = true;
        } else if (option == L"--lunits") {
            options.lunits = rest.TakeNumber(option, L'1', L'5');
        } else if (option == L"--luprec") {
            options.luprec = rest.TakeNumber(option, L'0', L'8');
        } else if (option == L"--check-heap") {
            options.checkHeap = true;
        } else if (option == L"--version") {
            options.version = true;
        } else if (option == L"--help") {
            options.help = true;
        } else if (option.starts_with(L"-")) {
            throw CUserError(L"the option '" + option + L"' is not known: see --help");
        } else {
            throw CUserError(L"the argument '" + option + L"' belongs to no option: see --help");
        }
    }
    return options;
}

const wchar_t* HelpText() {
    return LR"(DevHost: a stand-in host for trying plug-in modules without the CAD application

  DevHost.exe [OPTIONS]

  --plugin FILE   the plug-in to load (TavrinWnd.dll beside DevHost.exe)
  --search DIR    where files are looked for, before the current folder; repeatable, in order
  --items DIR     a folder of items, each in DIR\NAME with NAME.lsp; repeatable (samples beside DevHost.exe)
  --lunits N      LUNITS: 1 scientific, 2 decimal (the default), 3 engineering, 4 architectural, 5 fractional
  --luprec N      LUPREC: digits, or the exponent of the largest denominator, 0 to 8 (4)
  --script FILE   run the LISP file, print what it prints alone, and end; repeatable
  --eval TEXT     evaluate the LISP expressions in TEXT, print what each gives, and end; repeatable
  --drawing FILE  write the drawing at the end, as SVG
  --stay          do not end after --script and --eval
  --check-heap    give the plug-in the checking allocator, checked\TD_Alloc.dll beside DevHost.exe
  --version       print the version
  --help          print this text

Scripts and expressions are done in the order given. Without any, and with --stay, DevHost stays open; its
prompt takes LISP calls such as (tavrinwnd "door" 1.0 1).

What a call gave is printed in LISP notation, or "; no result". The first failure ends the run: a mistake in
LISP, an error that the plug-in reported, a call that could not be made. When the plug-in has been unloaded, the
blocks of the host's heap that it still holds are counted.

Exit status: 0 everything went well; 1 something failed, or the plug-in still held memory; 3 the plug-in or
DevHost crashed; 4 the checking allocator found the heap misused; another one as (exit N) asks.
)";
}
