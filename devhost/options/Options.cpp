#include "devhost/options/Options.h"

#include <algorithm>

#include "cmdline/CommandLine.h"
#include "devhost/Libraries.h"
#include "encoding/Encoding.h"

namespace devhost {

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

CCommandLine::Take Into(std::vector<Task>& tasks, bool isScript) {
    return [&tasks, isScript](const std::string& value) { tasks.push_back({isScript, Wide(value)}); };
}

}  // namespace

Options ParseOptions(std::span<const std::wstring> arguments) {
    Options options;
    CCommandLine commandLine;
    commandLine.AddOption("--plugin", "TavrinWnd.dll", Into(options.plugIn));
    commandLine.AddOption("--search", "C:\\Items", Into(options.searchFolders));
    commandLine.AddOption("--items", "samples", Into(options.itemFolders));
    commandLine.AddOption("--texts", "en\\TavrinRes.dll", Into(options.texts));
    commandLine.AddNumber("--lunits", 4, {units::LU_SCIENTIFIC, units::LU_FRACTIONAL}, options.lunits);
    commandLine.AddNumber("--luprec", 2, {0, units::kMaxLinearPrecision}, options.luprec);
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

  --plugin FILE   the plug-in to load (default: TavrinWnd.dll beside DevHost.exe)
  --search DIR    search for files in DIR before the current folder; repeatable, in order
  --items DIR     a folder of items, DIR\NAME\NAME.lsp; repeatable (default: samples beside DevHost.exe)
  --texts FILE    the TavrinRes.dll with titles and labels (default: from the folder texts of the items, otherwise
                  the one that the system finds, such as that beside DevHost.exe)
  --lunits N      LUNITS: 1 scientific, 2 decimal (default), 3 engineering, 4 architectural, 5 fractional
  --luprec N      LUPREC, 0 to 8: decimal places, or the exponent of the largest denominator (default: 4)
  --script FILE   run the LISP file, print only its own output, and exit; repeatable
  --eval TEXT     evaluate the LISP expressions in TEXT, print their values, and exit; repeatable
  --drawing FILE  write the drawing at the end, as SVG
  --stay          do not exit after --script and --eval
  --check-heap    give the plug-in the checking allocator, checked\TD_Alloc.dll beside DevHost.exe
  --version       print the version
  -h, --help      print this help

Scripts and expressions run in the order given. With none of them, or with --stay, DevHost stays open; its prompt
accepts LISP calls such as (door), the routine of an item.

Values are printed in LISP notation; a call without a result prints "; no result". The first failure ends the run:
a LISP error, an error that the plug-in reports, or a call that cannot be made. After unloading the plug-in, DevHost
reports the memory blocks that the plug-in has not freed.

Exit status: 0 success; 1 failure, or the plug-in has not freed all memory; 3 the plug-in or DevHost crashed;
4 the checking allocator detected heap misuse; N after a call of (exit N).
)";
}

}  // namespace devhost
