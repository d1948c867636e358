// A dialog template as Windows reads it from memory (the plain form, not the extended one): header, texts and
// font, then one record per control, each at a 4-byte boundary.
//
// Coordinates are dialog units; positions, sizes and ids are cut to the template's 16 bits. Texts end at
// their first zero and are written as UTF-16 whatever the size of wchar_t.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "dyndlg/DialogLayout.h"

namespace tavrin::dyndlg {

// A control that Windows creates together with the dialog. Its class is given as an ordinal: Windows knows
// those of CT_BUTTON to CT_COMBOBOX, and makes no dialog from a template with another.
struct DialogTemplateItem {
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    DialogRect rect = {};
    std::uint32_t id = 0;
    std::uint32_t typeCode = 0;
    std::wstring_view caption = {};
};

// The texts belong to the caller.
struct DialogTemplate {
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    DialogExtent extent = {};
    std::wstring_view caption = {};
    std::uint16_t pointSize = 0;
    std::wstring_view faceName = {};
    std::vector<DialogTemplateItem> items = {};
};

// How many bytes the template takes. The last item is not rounded up.
std::size_t TemplateSize(const DialogTemplate& dialog);

// Writes the template, gaps included, to the beginning of `memory`, which holds TemplateSize bytes. A
// dialog without menu, of the default window class; items without creation data.
void WriteTemplate(const DialogTemplate& dialog, std::span<std::byte> memory);

}  // namespace tavrin::dyndlg
