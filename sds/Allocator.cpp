// operator new and delete of the module: the host's, so that memory may pass from one to the other and
// every block that the module holds lies on the host's heap.
//
// The host's allocator library exports them under the names that the host's compiler gives to the
// operators; the import library maps those names to the plain ones below. It answers null when there is
// no memory, since an exception of its compiler cannot be caught here.
#include <cstddef>
#include <new>

extern "C" {
__declspec(dllimport) void* td_new(std::size_t size);
__declspec(dllimport) void* td_new_array(std::size_t size);
__declspec(dllimport) void td_delete(void* block);
__declspec(dllimport) void td_delete_array(void* block);
}

namespace {

void* OrThrow(void* block) {
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

}  // namespace

void* operator new(std::size_t size) {
    return OrThrow(td_new(size));
}
void* operator new[](std::size_t size) {
    return OrThrow(td_new_array(size));
}
void operator delete(void* block) noexcept {
    td_delete(block);
}
void operator delete[](void* block) noexcept {
    td_delete_array(block);
}
void operator delete(void* block, std::size_t) noexcept {
    td_delete(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    td_delete_array(block);
}
