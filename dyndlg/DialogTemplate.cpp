#include "dyndlg/DialogTemplate.h"

namespace tavrin::dyndlg {

namespace {

constexpr std::size_t kItemAlignment = 4;

std::size_t RoundedUp(std::size_t size) {
    return (size + kItemAlignment - 1) / kItemAlignment * kItemAlignment;
}

std::wstring_view UpToZero(std::wstring_view text) {
    return text.substr(0, text.find(L'\0'));
}

// Calls `use` with each UTF-16 unit of the text, without a final zero.
template <typename Use>
void ForEachUnit(std::wstring_view text, Use use) {
    for (const wchar_t character : UpToZero(text)) {
        const auto code = static_cast<std::uint32_t>(character);
        if (code > 0xFFFF) {  // where wchar_t has 32 bits
            use(static_cast<std::uint16_t>(0xD7C0 + (code >> 10)));
            use(static_cast<std::uint16_t>(0xDC00 + (code & 0x3FF)));
        } else {
            use(static_cast<std::uint16_t>(code));
        }
    }
}

std::size_t TextSize(std::wstring_view text) {
    std::size_t units = 1;
    ForEachUnit(text, [&](std::uint16_t) { ++units; });
    return 2 * units;
}

std::size_t HeadSize(const DialogTemplate& dialog) {
    constexpr std::size_t fixedFields = 24;
    return fixedFields + TextSize(dialog.caption) + TextSize(dialog.faceName);
}

std::size_t ItemSize(const DialogTemplateItem& item) {
    constexpr std::size_t fixedFields = 24;
    return fixedFields + TextSize(item.caption);
}

// Writes fields one after the other, low byte first.
class CFieldWriter {
public:
    explicit CFieldWriter(std::span<std::byte> memory) : m_memory(memory) {}

    void Word(std::uint32_t value) {
        Byte(value);
        Byte(value >> 8);
    }
    void DoubleWord(std::uint32_t value) {
        Word(value);
        Word(value >> 16);
    }
    void Text(std::wstring_view text) {
        ForEachUnit(text, [this](std::uint16_t unit) { Word(unit); });
        Word(0);
    }
    void AlignForItem() {
        while (m_used % kItemAlignment != 0) {
            Byte(0);
        }
    }

private:
    void Byte(std::uint32_t value) { m_memory[m_used++] = static_cast<std::byte>(value & 0xFF); }

    std::span<std::byte> m_memory;
    std::size_t m_used = 0;
};

// The low bits of a signed number as they are in memory.
std::uint32_t Bits(std::int32_t value) {
    return static_cast<std::uint32_t>(value);
}

void WriteHead(const DialogTemplate& dialog, CFieldWriter& writer) {
    writer.DoubleWord(dialog.style);
    writer.DoubleWord(dialog.exStyle);
    writer.Word(static_cast<std::uint32_t>(dialog.items.size()));
    writer.Word(Bits(dialog.extent.x));
    writer.Word(Bits(dialog.extent.y));
    writer.Word(Bits(dialog.extent.cx));
    writer.Word(Bits(dialog.extent.cy));
    writer.Word(0);  // no menu
    writer.Word(0);  // the default dialog class
    writer.Text(dialog.caption);
    writer.Word(dialog.pointSize);
    writer.Text(dialog.faceName);
}

void WriteItem(const DialogTemplateItem& item, CFieldWriter& writer) {
    constexpr std::uint32_t ordinalFollows = 0xFFFF;
    const DialogRect& rect = item.rect;
    writer.AlignForItem();
    writer.DoubleWord(item.style);
    writer.DoubleWord(item.exStyle);
    writer.Word(Bits(rect.left));
    writer.Word(Bits(rect.top));
    writer.Word(Bits(rect.right) - Bits(rect.left));  // unsigned: no overflow, however far apart they are
    writer.Word(Bits(rect.bottom) - Bits(rect.top));
    writer.Word(item.id);
    writer.Word(ordinalFollows);
    writer.Word(item.typeCode);
    writer.Text(item.caption);
    writer.Word(0);  // no creation data
}

}  // namespace

std::size_t TemplateSize(const DialogTemplate& dialog) {
    std::size_t size = HeadSize(dialog);
    for (const DialogTemplateItem& item : dialog.items) {
        size = RoundedUp(size) + ItemSize(item);
    }
    return size;
}

void WriteTemplate(const DialogTemplate& dialog, std::span<std::byte> memory) {
    CFieldWriter writer(memory);
    WriteHead(dialog, writer);
    for (const DialogTemplateItem& item : dialog.items) {
        WriteItem(item, writer);
    }
}

}  // namespace tavrin::dyndlg
