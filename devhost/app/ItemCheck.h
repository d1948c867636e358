// Checks items with the checker's rules, for authors who try them in DevHost: prints the findings that are
// new since the last check of the item, and a line when none are left. Reads the item's files and
// TavrinRes.dll, which may change between checks.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "devhost/app/Items.h"
#include "devhost/app/TextOutput.h"

namespace devhost {

class CItemCheck {
public:
    // The output must outlive this object.
    explicit CItemCheck(CTextOutput& output) : m_output(output) {}

    // Forgets what was printed, so that the next checks print all their findings.
    void Forget() { m_printed.clear(); }

    // Checks the template, the working file, the pictures, the slides and the texts of an item.
    void Check(const Item& item);

    // Prints why a dialog on this working file will have no rows, if OK has replaced its parameters with
    // assignments; otherwise prints nothing. `path` is the file's full path.
    void CheckBeforeDialog(const std::wstring& path);

private:
    CTextOutput& m_output;
    std::map<std::wstring, std::vector<std::wstring>>
        m_printed;  // lines of the last check, by the item's folder
};

}  // namespace devhost
