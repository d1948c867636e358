#include "devhost/options/Options.h"

#include <algorithm>

#include "cmdline/CommandLine.h"
#include "encoding/Encoding.h"

using tavrin::cmdline::CCommandLine;
using tavrin::cmdline::CUsageError;
using tavrin::encoding::DecodeUtf8;
using tavrin::encoding::EncodeUtf8;

namespace {

// The command line is parsed as UTF-8.
std::wstring Wide(const std::string& text) {
    return DecodeUtf8(text).value_or(std::wstring());
}

CCommandLine::Take Into(std::wstring& text) {
    return [&text](const std::string& value) { text = Wide(value); };
}

CCommandLine::Take Into(std::vector<std::wstring>& texts) {
    return [&texts](const std::string& value) { texts.push_back(Wide(value)); };
}

CCommandLine::Take Into(std::vector<STask>& tasks, bool isScript) {
    return [&tasks, isScript](const std::string& value) { tasks.push_back({isScript, Wide(value)}); };
}

}  // namespace

SOptions ParseOptions(std::span<const std::wstring> arguments) {
    SOptions options;
    CCommandLine commandLine;
    commandLine.AddOption("--plugin", "TavrinWnd.dll", Into(options.plugIn));
    commandLine.AddOption("--search", "C:\\Items", Into(options.searchFolders));
    commandLine.AddOption("--items", "samples", Into(options.itemFolders));
    commandLine.AddNumber("--lunits", 4, {LU_SCIENTIFIC, LU_FRACTIONAL}, options.lunits);
    commandLine.AddNumber("--luprec", 2, {0, kMaxLinearPrecision}, options.luprec);
    commandLine.AddOption("--script", "door.lsp", Into(options.tasks, true));
    commandLine.AddOption("--eval", "\"(+ 1 2)\"", Into(options.tasks, false));
    commandLine.AddOption("--drawing", "door.svg", Into(options.drawingFile));
    commandLine.AddFlag("--stay", options.stay);
    commandLine.AddFlag("--check-heap", options.checkHeap);
    commandLine.AddExitFlag("--version", options.version);
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    std::vector<std::string> bytes(arguments.size());
    std::transform(arguments.begin(), arguments.end(), bytes.begin(), EncodeUtf8);
    try {
        commandLine.Parse(bytes);
    } catch (const CUsageError& error) {
        throw CUserError(Wide(error.what()));
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
