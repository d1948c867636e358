#include "tests/unit/support/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace {

bool limited = false;
bool failed = false;
std::size_t left = 0;

void* Allocate(std::size_t size) {
    if (limited && left == 0) {
        failed = true;
        throw std::bad_alloc();
    }
    left -= limited ? 1 : 0;
    if (void* block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

CFailingMemory::CFailingMemory(std::size_t allocationsLeft) {
    left = allocationsLeft;
    failed = false;
    limited = true;
}

CFailingMemory::~CFailingMemory() {
    limited = false;
}

bool CFailingMemory::HasFailed() const {
    return failed;
}
