// A module file made in memory: headers, one section, and in it a directory of string blocks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tests {

class CModuleImage {
public:
    struct Block {
        std::uint32_t number;
        std::uint32_t language;
        std::vector<std::u16string> texts;  // up to sixteen
    };

    // The bytes of a module with these blocks; 64 or 32 bit.
    static std::string Make(const std::vector<Block>& blocks, bool is64 = true) {
        std::string resources = Directory(1);
        resources += Number(6, 4) + Number(kSubdirectory | 24, 4);
        resources += Directory(blocks.size());
        const std::size_t languages = 24 + 16 + 8 * blocks.size();
        const std::size_t entries = languages + 24 * blocks.size();
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            resources += Number(blocks[i].number, 4) + Number(kSubdirectory | (languages + 24 * i), 4);
        }
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            resources += Directory(1) + Number(blocks[i].language, 4) + Number(entries + 16 * i, 4);
        }
        std::string data;
        const std::size_t dataStart = entries + 16 * blocks.size();
        for (const Block& block : blocks) {
            const std::string bytes = BlockBytes(block);
            resources +=
                Number(kAddress + dataStart + data.size(), 4) + Number(bytes.size(), 4) + Number(0, 8);
            data += bytes;
        }
        resources += data;
        return Headers(is64, resources.size()) + resources;
    }

    static constexpr std::size_t kResources = 0x200;  // where the directory begins in the file

private:
    static constexpr std::uint32_t kSubdirectory = 0x80000000;
    static constexpr std::size_t kAddress = 0x3000;  // of the section in memory

    static std::string Number(std::size_t value, std::size_t size) {
        std::string bytes;
        for (std::size_t i = 0; i < size; ++i) {
            bytes += static_cast<char>(i < sizeof value ? value >> 8 * i & 0xFF : 0);
        }
        return bytes;
    }

    static std::string Directory(std::size_t count) { return Number(0, 14) + Number(count, 2); }

    static std::string BlockBytes(const Block& block) {
        std::string bytes;
        for (std::size_t i = 0; i < 16; ++i) {
            const std::u16string text = i < block.texts.size() ? block.texts[i] : u"";
            bytes += Number(text.size(), 2);
            for (const char16_t unit : text) {
                bytes += Number(unit, 2);
            }
        }
        return bytes;
    }

    static std::string Headers(bool is64, std::size_t size) {
        const std::size_t optionalSize = is64 ? 240 : 224;
        std::string file = "MZ" + std::string(0x3A, '\0') + Number(0x40, 4);
        file += std::string("PE\0\0", 4) + Number(is64 ? 0x8664 : 0x14C, 2) + Number(1, 2) + Number(0, 12) +
                Number(optionalSize, 2) + Number(0x2022, 2);
        file += Number(is64 ? 0x20B : 0x10B, 2) + std::string(is64 ? 106 : 90, '\0') + Number(16, 4);
        file += std::string(16, '\0') + Number(kAddress, 4) + Number(size, 4) + std::string(13 * 8, '\0');
        file += std::string(".rsrc\0\0\0", 8) + Number(size, 4) + Number(kAddress, 4) + Number(size, 4) +
                Number(kResources, 4) + std::string(16, '\0');
        file.resize(kResources);
        return file;
    }
};

}  // namespace tests
