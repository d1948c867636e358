// The bytes of a dialog template: they have exactly the computed size, and reading them field by field gives
// back the input.
#include <fuzzer/FuzzedDataProvider.h>

#include <memory>
#include <string>

#include "dyndlg/ControlTypes.h"
#include "dyndlg/DialogLayout.h"
#include "dyndlg/DialogTemplate.h"
#include "tests/fuzz/Fuzz.h"

using namespace tavrin::dyndlg;

namespace {

// Reads what a template holds, low byte first.
class CFieldReader {
public:
    explicit CFieldReader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    std::uint32_t Word() {
        Require(m_next + 2 <= m_bytes.size(), "the template is not cut off");
        const auto low = static_cast<std::uint32_t>(m_bytes[m_next]);
        const auto high = static_cast<std::uint32_t>(m_bytes[m_next + 1]);
        m_next += 2;
        return low | high << 8;
    }
    std::uint32_t DoubleWord() {
        const std::uint32_t low = Word();
        return low | Word() << 16;
    }
    std::u16string Text() {
        std::u16string text;
        for (std::uint32_t unit = Word(); unit != 0; unit = Word()) {
            text.push_back(static_cast<char16_t>(unit));
        }
        return text;
    }
    void Align() {
        for (; m_next % 4 != 0; ++m_next) {
            Require(m_bytes[m_next] == std::byte{0}, "gaps are zero");
        }
    }
    bool AtEnd() const { return m_next == m_bytes.size(); }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_next = 0;
};

// Up to the first zero, in UTF-16.
std::u16string Units(std::wstring_view text) {
    std::u16string units;
    for (const wchar_t character : text.substr(0, text.find(L'\0'))) {
        const auto code = static_cast<char32_t>(character);
        if (code > 0xFFFF) {
            units.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
        } else {
            units.push_back(static_cast<char16_t>(code));
        }
    }
    return units;
}

std::wstring Text(FuzzedDataProvider& data) {
    std::wstring text;
    for (auto count = data.ConsumeIntegralInRange<std::size_t>(0, 12); count > 0; --count) {
        text.push_back(static_cast<wchar_t>(data.ConsumeBool() ? data.ConsumeIntegralInRange(0, 0x10FFFF)
                                                               : data.ConsumeIntegralInRange(0, 0x7F)));
    }
    return text;
}

DialogRect Rect(FuzzedDataProvider& data) {
    const auto number = [&data] {
        return data.ConsumeBool() ? data.ConsumeIntegralInRange<std::int32_t>(-100, 1000)
                                  : data.ConsumeIntegral<std::int32_t>();
    };
    return {number(), number(), number(), number()};
}

std::uint32_t Low(std::int64_t value) {
    return static_cast<std::uint32_t>(value) & 0xFFFF;
}

void RequireHead(CFieldReader& reader, const DialogTemplate& dialog) {
    Require(reader.DoubleWord() == dialog.style && reader.DoubleWord() == dialog.exStyle, "styles are kept");
    Require(reader.Word() == Low(static_cast<std::int64_t>(dialog.items.size())), "the items are counted");
    for (const std::int16_t field : {dialog.extent.x, dialog.extent.y, dialog.extent.cx, dialog.extent.cy}) {
        Require(reader.Word() == Low(field), "the dialog keeps its position and size");
    }
    Require(reader.Word() == 0 && reader.Word() == 0, "there is no menu and no class");
    Require(reader.Text() == Units(dialog.caption), "the dialog keeps its caption");
    Require(reader.Word() == dialog.pointSize && reader.Text() == Units(dialog.faceName), "the font is kept");
}

void RequireItem(CFieldReader& reader, const DialogTemplateItem& item) {
    reader.Align();
    Require(reader.DoubleWord() == item.style && reader.DoubleWord() == item.exStyle,
            "an item keeps its styles");
    const DialogRect& rect = item.rect;
    for (const std::int64_t field :
         {std::int64_t{rect.left}, std::int64_t{rect.top}, std::int64_t{rect.right} - rect.left,
          std::int64_t{rect.bottom} - rect.top}) {
        Require(reader.Word() == Low(field), "an item keeps its position and size");
    }
    Require(reader.Word() == Low(item.id), "an item keeps its id");
    Require(reader.Word() == 0xFFFF && reader.Word() == Low(item.typeCode), "an item keeps its class");
    Require(reader.Text() == Units(item.caption), "an item keeps its caption");
    Require(reader.Word() == 0, "an item has no creation data");
}

// The first characters of a name decide, so that a class's own name means itself.
void CheckClassName(const std::wstring& name) {
    const std::uint32_t code = TypeCodeOfClass(name);
    const std::wstring known = ClassOfTypeCode(code);
    Require((code == CT_ACTIVEX) == known.empty(), "every class that is known has a name");
    if (code != CT_ACTIVEX) {
        Require(name.substr(0, 2) == known.substr(0, 2), "a name begins like its class");
        Require(TypeCodeOfClass(known) == code, "the name of a class means itself");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider bytes(data, size);
    DialogTemplate dialog;
    const std::wstring caption = Text(bytes);
    const std::wstring faceName = Text(bytes);
    dialog.style = bytes.ConsumeIntegral<std::uint32_t>();
    dialog.exStyle = bytes.ConsumeIntegral<std::uint32_t>();
    dialog.pointSize = bytes.ConsumeIntegral<std::uint16_t>();
    dialog.caption = caption;
    dialog.faceName = faceName;
    CDialogLayout layout;
    const auto count = bytes.ConsumeIntegralInRange<std::size_t>(0, 20);
    std::vector<std::wstring> captions(count);
    for (std::wstring& text : captions) {
        text = Text(bytes);
        CheckClassName(text);
        const DialogRect rect = Rect(bytes);
        DialogTemplateItem item;
        item.rect =
            layout.Place(bytes.ConsumeBool() ? &rect : nullptr, bytes.ConsumeIntegral<std::int16_t>());
        item.style = bytes.ConsumeIntegral<std::uint32_t>();
        item.id = bytes.ConsumeIntegral<std::uint32_t>();
        item.typeCode = bytes.ConsumeIntegralInRange<std::uint32_t>(CT_BUTTON - 1, CT_COMBOBOXEX + 1);
        item.caption = text;
        ExchangeOf(item.typeCode, item.style);
        dialog.items.push_back(item);
    }
    dialog.extent = layout.Extent();

    const std::size_t templateSize = TemplateSize(dialog);
    const auto memory = std::make_unique<std::byte[]>(templateSize);
    WriteTemplate(dialog, {memory.get(), templateSize});
    CFieldReader reader({memory.get(), templateSize});
    RequireHead(reader, dialog);
    for (const DialogTemplateItem& item : dialog.items) {
        RequireItem(reader, item);
    }
    Require(reader.AtEnd(), "the template fills its buffer");
    return 0;
}
