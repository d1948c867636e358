// What the checking heap knows of a block, and how it ends the process over one.
#pragma once

#include <cstddef>

// Which operator made a block; the matching one must give it back.
enum class EBlockKind : unsigned char { Single, Array };

struct SHeapBlock {
    std::size_t size = 0;
    std::size_t number = 0;  // counts the requests, from 1
    EBlockKind kind = EBlockKind::Single;
};

// Addresses of blocks are multiples of this, as both compilers expect of operator new.
inline constexpr std::size_t kBlockAlignment = 16;

// The exit status of a process whose heap was misused.
inline constexpr unsigned kHeapMisuseStatus = 4;

// What bytes hold that are nobody's or not yet anybody's.
inline constexpr unsigned char kFreshByte = 0xCD;   // of a new block
inline constexpr unsigned char kFreedByte = 0xDD;   // of a block that was given back
inline constexpr unsigned char kBorderByte = 0xFD;  // in front of and behind a block

// "block 17 (40 bytes, new[])"
struct SBlockName {
    explicit SBlockName(const SHeapBlock& block);
    char text[96];
};

// Whether every byte from `begin` up to `end` holds `byte`.
bool IsFilled(const unsigned char* begin, const unsigned char* end, unsigned char byte);

// Prints "heap check: " and what the format gives, and ends the process at once with kHeapMisuseStatus.
[[noreturn, gnu::format(gnu_printf, 1, 2)]] void EndOverHeapMisuse(const char* format, ...);
