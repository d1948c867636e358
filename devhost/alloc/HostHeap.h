// The exports of TD_Alloc.dll. Plug-ins import the four operators under the decorated names of the host's
// compiler; link td_alloc_import to call them from C++ as below. The others are for the host and for tests,
// which get them with GetProcAddress.
//
// Nothing throws: the plug-in could not catch an exception of the library's compiler. The plug-in's operator
// new turns the null pointer into std::bad_alloc.
#pragma once

#include <cstddef>

extern "C" {

// A new block of `size` bytes, which may be 0; null when out of memory.
void* td_new(std::size_t size);
void* td_new_array(std::size_t size);
// Releases a block; null does nothing.
void td_delete(void* block);
void td_delete_array(void* block);

// The number of live blocks, and the sum of their requested sizes.
std::size_t td_live_blocks(void);
std::size_t td_live_bytes(void);

// Only in the checking library:

// The number of allocation requests since the library was loaded, failed ones included.
std::size_t td_allocations(void);
// Makes the `count`-th request from now on fail, once; 0 cancels that.
void td_fail_after(std::size_t count);
// Lists up to `most` live blocks on the standard error output, the oldest first.
void td_print_live(std::size_t most);
}
