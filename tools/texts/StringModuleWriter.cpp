// The file: headers, and one section with the resource directory, a tree of three levels (type, name,
// language), followed by the blocks of sixteen texts to which its leaves point.
#include "tools/texts/StringModuleWriter.h"

#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

namespace tavrin::tools {

namespace {

constexpr std::size_t kTextsPerBlock = 16;
constexpr std::size_t kFileAlignment = 0x200;
constexpr std::size_t kPageSize = 0x1000;  // sections begin at pages in memory
constexpr std::size_t kHeaderSize = kFileAlignment;
constexpr std::uint32_t kSectionAddress = kPageSize;

constexpr std::size_t RoundedUp(std::size_t value, std::size_t unit) {
    return (value + unit - 1) / unit * unit;
}

// Appends numbers in little-endian order.
class CBytes {
public:
    CBytes& Put(std::uint64_t value, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) {
            m_bytes += static_cast<char>(value >> 8 * i & 0xFF);
        }
        return *this;
    }
    CBytes& Word(std::uint64_t value) { return Put(value, 2); }
    CBytes& DoubleWord(std::uint64_t value) { return Put(value, 4); }
    CBytes& Zeros(std::size_t count) { return PadTo(m_bytes.size() + count); }
    CBytes& Text(std::string_view text) {
        m_bytes += text;
        return *this;
    }
    // Fills with zeros up to the offset.
    CBytes& PadTo(std::size_t offset) {
        m_bytes.resize(offset);
        return *this;
    }

    std::size_t Size() const { return m_bytes.size(); }
    const std::string& Bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

using Block = std::array<std::wstring, kTextsPerBlock>;
// By block number and language, in the order that the system's search expects.
using Blocks = std::map<std::uint32_t, std::map<std::uint32_t, Block>>;

Blocks BlocksOf(const std::vector<CompiledText>& texts) {
    Blocks blocks;
    for (const CompiledText& text : texts) {
        if (!text.text.empty()) {
            const auto number = static_cast<std::uint32_t>(text.number / kTextsPerBlock + 1);
            blocks[number][text.language][text.number % kTextsPerBlock] = text.text;
        }
    }
    return blocks;
}

std::string BytesOfBlock(const Block& block) {
    CBytes bytes;
    for (const std::wstring& text : block) {
        bytes.Word(text.size());
        for (const wchar_t unit : text) {
            bytes.Word(static_cast<std::uint16_t>(unit));
        }
    }
    return bytes.Bytes();
}

// The section: the directories of all levels, the descriptions of the blocks, the blocks.
class CResources {
public:
    explicit CResources(const Blocks& blocks) : m_blocks(blocks) {
        for (const auto& [number, languages] : blocks) {
            m_blockCount += languages.size();
        }
    }

    std::string Bytes() {
        constexpr std::uint32_t kStringType = 6;
        const std::size_t names = DirectorySize(1);
        const std::size_t languages = names + DirectorySize(m_blocks.size());
        const std::size_t entries =
            languages + m_blocks.size() * DirectorySize(0) + m_blockCount * kEntrySize;
        const std::size_t data = entries + m_blockCount * kDataEntrySize;
        PutDirectory(1);
        PutEntry(kStringType, names | kSubdirectory);
        PutDirectory(m_blocks.size());
        std::size_t at = languages;
        for (const auto& [number, block] : m_blocks) {
            PutEntry(number, at | kSubdirectory);
            at += DirectorySize(block.size());
        }
        PutLanguages(entries);
        PutData(data);
        return m_section.Bytes();
    }

private:
    static constexpr std::uint32_t kSubdirectory = 0x80000000;
    static constexpr std::size_t kEntrySize = 8;
    static constexpr std::size_t kDataEntrySize = 16;
    static constexpr std::size_t kDataAlignment = 4;

    static constexpr std::size_t DirectorySize(std::size_t entryCount) {
        return 16 + kEntrySize * entryCount;
    }

    void PutDirectory(std::size_t entryCount) {
        // Characteristics, time, version, entries with names.
        m_section.Zeros(14).Word(entryCount);
    }
    void PutEntry(std::uint32_t number, std::size_t target) {
        m_section.DoubleWord(number).DoubleWord(target);
    }

    void PutLanguages(std::size_t entry) {
        for (const auto& [number, languages] : m_blocks) {
            PutDirectory(languages.size());
            for (const auto& [language, block] : languages) {
                PutEntry(language, entry);
                entry += kDataEntrySize;
            }
        }
    }

    void PutData(std::size_t start) {
        CBytes data;
        for (const auto& [number, languages] : m_blocks) {
            for (const auto& [language, block] : languages) {
                data.PadTo(RoundedUp(data.Size(), kDataAlignment));
                const std::string bytes = BytesOfBlock(block);
                // Address, size, code page (unused), reserved.
                m_section.DoubleWord(kSectionAddress + start + data.Size()).DoubleWord(bytes.size()).Zeros(8);
                data.Text(bytes);
            }
        }
        m_section.Text(data.Bytes());
    }

    const Blocks& m_blocks;
    std::size_t m_blockCount = 0;
    CBytes m_section;
};

// The format is chosen as a linker has it for a library without code that may be loaded anywhere.
class CModuleFile {
public:
    CModuleFile(std::string resources, EMachine machine)
        : m_resources(std::move(resources)), m_is64(machine == MC_X64) {}

    std::string Bytes() {
        PutFileHeader();
        PutOptionalHeader();
        PutDirectories();
        PutSectionHeader();
        return m_file.PadTo(kHeaderSize).Text(m_resources).PadTo(kHeaderSize + FileSize()).Bytes();
    }

private:
    std::size_t FileSize() const { return RoundedUp(m_resources.size(), kFileAlignment); }

    void PutFileHeader() {
        constexpr std::size_t kHeaderOffset = 0x40;
        constexpr unsigned kExecutable = 0x0002;
        constexpr unsigned kLargeAddressAware = 0x0020;
        constexpr unsigned k32BitMachine = 0x0100;
        constexpr unsigned kLibrary = 0x2000;
        // The old header; of it the system reads the mark and the offset of the new one.
        m_file.Text("MZ").PadTo(0x3C).DoubleWord(kHeaderOffset).Text("PE").Word(0);
        // Machine, sections, then time and symbols, which are left out.
        m_file.Word(m_is64 ? 0x8664 : 0x014C).Word(1).Zeros(12);
        m_file.Word(m_is64 ? 240 : 224)
            .Word(kExecutable | kLibrary | (m_is64 ? kLargeAddressAware : k32BitMachine));
    }

    void PutOptionalHeader() {
        // Magic and linker version, sizes of code, data and empty data, entry point, start of the code.
        m_file.Word(m_is64 ? 0x20B : 0x10B).Word(0).DoubleWord(0).DoubleWord(FileSize()).DoubleWord(0);
        m_file.DoubleWord(0).DoubleWord(kSectionAddress);
        if (m_is64) {
            m_file.Put(0x180000000, 8);
        } else {
            m_file.DoubleWord(kSectionAddress)
                .DoubleWord(0x10000000);  // start of the data, preferred address
        }
        m_file.DoubleWord(kPageSize).DoubleWord(kFileAlignment);
        // Versions: system 6.1, image, subsystem 6.1 (Windows 7); reserved.
        m_file.Word(6).Word(1).DoubleWord(0).Word(6).Word(1).DoubleWord(0);
        m_file.DoubleWord(RoundedUp(kSectionAddress + m_resources.size(), kPageSize)).DoubleWord(kHeaderSize);
        constexpr unsigned kHighEntropyAddress = 0x0020;
        constexpr unsigned kDynamicBase = 0x0040;
        constexpr unsigned kNoDataExecution = 0x0100;
        constexpr unsigned kNoExceptionHandlers = 0x0400;
        constexpr unsigned kGraphicalSubsystem = 2;
        m_file.DoubleWord(0).Word(kGraphicalSubsystem);  // the checksum matters for drivers alone
        m_file.Word(kDynamicBase | kNoDataExecution | kNoExceptionHandlers |
                    (m_is64 ? kHighEntropyAddress : 0));
        // Stack and heap, reserved and committed: those of a program count; loader flags.
        m_file.Zeros(m_is64 ? 32 : 16).DoubleWord(0);
    }

    void PutDirectories() {
        constexpr std::size_t kCount = 16;
        constexpr std::size_t kResourceDirectory = 2;
        m_file.DoubleWord(kCount);
        for (std::size_t i = 0; i < kCount; ++i) {
            const bool isResources = i == kResourceDirectory;
            m_file.DoubleWord(isResources ? kSectionAddress : 0)
                .DoubleWord(isResources ? m_resources.size() : 0);
        }
    }

    void PutSectionHeader() {
        constexpr std::uint32_t kReadableData = 0x40000040;
        m_file.Text(".rsrc").Zeros(3);
        m_file.DoubleWord(m_resources.size()).DoubleWord(kSectionAddress);
        m_file.DoubleWord(FileSize()).DoubleWord(kHeaderSize);
        // Relocations and line numbers.
        m_file.Zeros(12).DoubleWord(kReadableData);
    }

    std::string m_resources;
    bool m_is64;
    CBytes m_file;
};

}  // namespace

std::string StringModule(const std::vector<CompiledText>& texts, EMachine machine) {
    const Blocks blocks = BlocksOf(texts);
    return CModuleFile(CResources(blocks).Bytes(), machine).Bytes();
}

}  // namespace tavrin::tools
