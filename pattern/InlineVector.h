// A vector of plain data whose first elements are in the object itself, so that the usual small number of
// them needs no memory from the heap. Beyond them it grows by doubling. Growing throws std::bad_alloc.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace tavrin::pattern {

template <class T, std::size_t inlineCapacity>
class CInlineVector {
public:
    CInlineVector() = default;  // cppcheck-suppress uninitMemberVar; see m_inline
    CInlineVector(const CInlineVector&) = delete;
    CInlineVector& operator=(const CInlineVector&) = delete;

    std::size_t Size() const { return m_size; }
    T& operator[](std::size_t index) { return m_data[index]; }
    const T& operator[](std::size_t index) const { return m_data[index]; }
    T& Back() { return m_data[m_size - 1]; }

    void PushBack(const T& element) {
        if (m_size == m_capacity) {
            Grow(2 * m_capacity);
        }
        m_data[m_size++] = element;
    }

    void PopBack() { --m_size; }

    // Makes it hold that many copies of the element and nothing else.
    void Assign(std::size_t count, const T& element) {
        m_size = 0;
        if (count > m_capacity) {
            Grow(count);
        }
        m_size = count;
        std::fill_n(m_data, count, element);
    }

private:
    void Grow(std::size_t capacity) {
        auto larger = std::make_unique_for_overwrite<T[]>(capacity);
        std::copy_n(m_data, m_size, larger.get());
        m_heap = std::move(larger);
        m_data = m_heap.get();
        m_capacity = capacity;
    }

    std::size_t m_size = 0;
    std::size_t m_capacity = inlineCapacity;
    std::array<T, inlineCapacity> m_inline;  // left uninitialized: written before it is read
    T* m_data = m_inline.data();
    std::unique_ptr<T[]> m_heap;
};

}  // namespace tavrin::pattern
