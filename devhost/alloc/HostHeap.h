// What TD_Alloc.dll exports. Plug-ins call the four operators under the names that the host's compiler
// gives them; link td_alloc_import to call them from C++ as below. The others are for the host and for
// tests, which fetch them with GetProcAddress.
//
// Nothing is thrown: an exception of the library's compiler could not be caught in the plug-in. The
// plug-in's operator new turns the null pointer into std::bad_alloc.
#pragma once

#include <cstddef>

extern "C" {

// A new block of `size` bytes, which may be 0; null when there is no memory.
void* td_new(std::size_t size);
void* td_new_array(std::size_t size);
// Gives a block back; null does nothing.
void td_delete(void* block);
void td_delete_array(void* block);

// The blocks that have not been given back, and the sum of the sizes they were asked with.
std::size_t td_live_blocks(void);
std::size_t td_live_bytes(void);

// The following in the checking library alone.

// How often a block was asked for since the library was loaded, refusals included.
std::size_t td_allocations(void);
// Lets the `count`-th request from now on fail, once; 0 takes that back.
void td_fail_after(std::size_t count);
// Lists up to `most` live blocks on the standard error output, the oldest first.
void td_print_live(std::size_t most);
}
