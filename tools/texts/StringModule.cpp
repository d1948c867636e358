// Reads the file's resource directory: a tree of three levels (type, name, language) whose leaves give the
// address of a block of sixteen texts.
#include "tools/texts/StringModule.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "tools/files/Files.h"
#include "tools/texts/LanguageName.h"

namespace tavrin::tools {

namespace {

constexpr std::uint32_t kStringType = 6;
constexpr std::uint32_t kTextsPerBlock = 16;
constexpr std::uint32_t kLastBlock = 0x10000 / kTextsPerBlock;
constexpr std::uint32_t kSubdirectory = 0x80000000;

class CModuleReader {
public:
    CModuleReader(const std::string& name, std::string_view bytes) : m_name(name), m_bytes(bytes) {}

    std::vector<ModuleText> Read() {
        FindResources();
        if (m_resources != 0) {
            ForEachEntry(0, [this](std::uint32_t type, std::uint32_t names) {
                if (type == kStringType) {
                    ReadBlocks(names);
                }
            });
        }
        return std::move(m_texts);
    }

private:
    [[noreturn]] void Fail(const std::string& message) const { throw CToolError(m_name + ": " + message); }

    unsigned Byte(std::size_t offset) const {
        if (offset >= m_bytes.size()) {
            Fail("the file ends before its resources do (byte " + std::to_string(offset) + ")");
        }
        return static_cast<unsigned char>(m_bytes[offset]);
    }
    std::uint32_t Word(std::size_t offset) const { return Byte(offset) | Byte(offset + 1) << 8; }
    std::uint32_t DoubleWord(std::size_t offset) const { return Word(offset) | Word(offset + 2) << 16; }

    // The headers give the address of the resources in memory; the sections map it to an offset in the file.
    void FindResources() {
        const std::size_t header = DoubleWord(0x3C);
        if (DoubleWord(header) != 0x00004550) {
            Fail("not a module: a DLL or EXE file, or a resource script, is expected");
        }
        const std::size_t sectionCount = Word(header + 6);
        const std::size_t optional = header + 24;
        const std::size_t optionalSize = Word(header + 20);
        const std::uint32_t magic = optionalSize >= 2 ? Word(optional) : 0;
        if (magic != 0x10B && magic != 0x20B) {
            Fail("not a Windows module: its header has an unknown format");
        }
        const std::size_t directories = optional + (magic == 0x20B ? 108 : 92);
        constexpr std::size_t kResourceDirectory = 2;
        if (DoubleWord(directories) <= kResourceDirectory) {
            return;
        }
        const std::uint32_t address = DoubleWord(directories + 4 + kResourceDirectory * 8);
        if (address == 0) {
            return;
        }
        m_sections = optional + optionalSize;
        m_sectionCount = sectionCount;
        m_resources = FileOffset(address);
    }

    std::size_t FileOffset(std::uint32_t address) const {
        for (std::size_t i = 0; i < m_sectionCount; ++i) {
            const std::size_t section = m_sections + i * 40;
            const std::uint32_t start = DoubleWord(section + 12);
            const std::uint32_t size = DoubleWord(section + 16);
            if (address >= start && address - start < size) {
                return std::size_t{DoubleWord(section + 20)} + (address - start);
            }
        }
        Fail("its resources are outside of all sections");
    }

    // In a valid file no byte of the resources is read twice. The bytes read are counted, so that entries
    // with shared targets cannot multiply the work.
    void Charge(std::size_t bytes) {
        m_charged += bytes;
        if (m_charged > m_bytes.size()) {
            Fail("its resources overlap");
        }
    }

    // Calls the function with the number and the target of each entry of a directory that has a number.
    void ForEachEntry(std::uint32_t directory,
                      const std::function<void(std::uint32_t number, std::uint32_t target)>& use) {
        const std::size_t start = m_resources + directory;
        const std::size_t named = Word(start + 12);
        const std::size_t numbered = Word(start + 14);
        Charge(16 + 8 * numbered);
        for (std::size_t i = named; i < named + numbered; ++i) {
            const std::size_t entry = start + 16 + i * 8;
            use(DoubleWord(entry), DoubleWord(entry + 4));
        }
    }

    std::uint32_t Subdirectory(std::uint32_t target) const {
        if ((target & kSubdirectory) == 0) {
            Fail("its resource directory does not have three levels");
        }
        return target & ~kSubdirectory;
    }

    void ReadBlocks(std::uint32_t names) {
        ForEachEntry(Subdirectory(names), [this](std::uint32_t block, std::uint32_t languages) {
            if (block == 0 || block > kLastBlock) {
                Fail("it has a block of texts with the invalid number " + std::to_string(block));
            }
            ForEachEntry(Subdirectory(languages), [&](std::uint32_t language, std::uint32_t data) {
                if ((data & kSubdirectory) != 0) {
                    Fail("its resource directory has more than three levels");
                }
                ReadBlock((block - 1) * kTextsPerBlock, language, data);
            });
        });
    }

    void ReadBlock(unsigned firstNumber, std::uint32_t language, std::uint32_t data) {
        const std::size_t entry = m_resources + data;
        std::size_t at = FileOffset(DoubleWord(entry));
        const std::size_t size = DoubleWord(entry + 4);
        Charge(16 + size);
        const std::size_t end = at + size;
        for (unsigned number = firstNumber; number < firstNumber + kTextsPerBlock && at + 2 <= end;
             ++number) {
            const std::size_t length = Word(at);
            at += 2;
            if (length * 2 > end - at) {
                Fail("text " + std::to_string(number) + " is longer than its block");
            }
            if (length > 0) {
                m_texts.push_back({number, Units(at, length), language, LanguageName(language)});
            }
            at += length * 2;
        }
    }

    std::wstring Units(std::size_t offset, std::size_t count) const {
        std::wstring text;
        text.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            text += static_cast<wchar_t>(Word(offset + i * 2));
        }
        return text;
    }

    const std::string& m_name;
    std::string_view m_bytes;
    std::size_t m_sections = 0;
    std::size_t m_sectionCount = 0;
    std::size_t m_resources = 0;  // where the directory begins in the file; 0 when there is none
    std::size_t m_charged = 0;
    std::vector<ModuleText> m_texts;
};

}  // namespace

bool LooksLikeModule(std::string_view bytes) {
    return bytes.substr(0, 2) == "MZ";
}

std::vector<ModuleText> ReadStringModule(const std::string& name, std::string_view bytes) {
    return CModuleReader(name, bytes).Read();
}

}  // namespace tavrin::tools
