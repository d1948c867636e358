// The checking heap's data of a block, and its errors.
#pragma once

#include <cstddef>

namespace devhost {

// The operator that allocated a block; the matching one must release it.
enum EBlockKind : unsigned char { BK_SINGLE, BK_ARRAY };

struct HeapBlock {
    std::size_t size = 0;
    std::size_t number = 0;  // counts the requests, from 1
    EBlockKind kind = BK_SINGLE;
};

// Addresses of blocks are multiples of this, as both compilers expect of operator new.
inline constexpr std::size_t kBlockAlignment = 16;

// The exit status of a process whose heap was misused.
inline constexpr unsigned kHeapMisuseStatus = 4;

// Fill patterns.
inline constexpr unsigned char kFreshByte = 0xCD;   // of a new block
inline constexpr unsigned char kFreedByte = 0xDD;   // of a released block
inline constexpr unsigned char kBorderByte = 0xFD;  // before and after a block

// "block 17 (40 bytes, new[])"
struct BlockName {
    explicit BlockName(const HeapBlock& block);
    char text[96];
};

// Whether every byte from `begin` up to `end` holds `byte`.
bool IsFilled(const unsigned char* begin, const unsigned char* end, unsigned char byte);

// Prints "heap check: " and the formatted message, and ends the process at once with kHeapMisuseStatus.
[[noreturn, gnu::format(gnu_printf, 1, 2)]] void AbortOnHeapMisuse(const char* format, ...);

}  // namespace devhost
