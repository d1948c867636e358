// Local memory with its owner and its lock: freed and unlocked on every way out.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <span>

namespace tavrin::dyndlg {

// Movable, zero-filled memory of `size` bytes. Null when the system has none.
class CLocalMemory {
public:
    explicit CLocalMemory(std::size_t size)
        : m_handle(::LocalAlloc(LMEM_MOVEABLE | LMEM_ZEROINIT, size)), m_size(size) {}
    ~CLocalMemory() { Free(); }
    CLocalMemory(const CLocalMemory&) = delete;
    CLocalMemory& operator=(const CLocalMemory&) = delete;

    bool IsNull() const { return m_handle == nullptr; }
    HLOCAL Handle() const { return m_handle; }
    std::size_t Size() const { return m_size; }
    void Free() {
        if (m_handle != nullptr) {
            ::LocalFree(m_handle);
        }
        m_handle = nullptr;
    }

private:
    HLOCAL m_handle;
    std::size_t m_size;
};

// The address of local memory for as long as this lives, which must be shorter than the memory. Null when it
// cannot be locked.
class CLocalLock {
public:
    explicit CLocalLock(const CLocalMemory& memory)
        : m_memory(memory), m_address(static_cast<std::byte*>(::LocalLock(memory.Handle()))) {}
    ~CLocalLock() {
        if (m_address != nullptr) {
            ::LocalUnlock(m_memory.Handle());
        }
    }
    CLocalLock(const CLocalLock&) = delete;
    CLocalLock& operator=(const CLocalLock&) = delete;

    bool IsNull() const { return m_address == nullptr; }
    std::span<std::byte> Bytes() const { return {m_address, m_memory.Size()}; }

private:
    const CLocalMemory& m_memory;
    std::byte* m_address;
};

}  // namespace tavrin::dyndlg
