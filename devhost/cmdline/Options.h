// The command line of DevHost.
#pragma once

#include <exception>
#include <span>
#include <string>
#include <vector>

#include "LinearUnits.h"

struct SOptions {
    std::wstring plugIn;  // empty: TavrinWnd.dll beside the executable
    std::vector<std::wstring> searchFolders;
    std::vector<std::wstring> evaluations;
    short lunits = LU_DECIMAL;
    short luprec = 4;
    bool checkHeap = false;
    bool help = false;
};

// A mistake in the command line: one line for the user that names it and what to do.
class COptionError : public std::exception {
public:
    explicit COptionError(std::wstring message) : m_message(std::move(message)) {}

    const std::wstring& Text() const { return m_message; }
    const char* what() const noexcept override;

private:
    std::wstring m_message;
};

// Reads the arguments behind the program's name. Throws COptionError for an option or an argument that is
// not known, for one without its value and for a number out of range. --help wins over what follows it.
SOptions ParseOptions(std::span<const std::wstring> arguments);

// What --help prints, in lines.
const wchar_t* HelpText();
