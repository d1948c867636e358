// What the search of a match has to remember: untried choices, and what to put back when it backs out. The
// first entries lie in the object itself, so that a usual line takes no memory from the heap; beyond them the
// stack moves to the heap and grows by doubling. Push throws std::bad_alloc when it cannot.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

struct BacktrackEntry {
    enum class EKind : std::uint8_t {
        Choice,   // go on at instruction `index`, from place `first`
        Look,     // the same: the look-ahead failed inside, which is its success
        Opening,  // group `index` had begun at `first` before it began anew
        Group,    // put the pair (`first`, `second`) back into group `index`
        Run,      // the run at `index` may give back from `second` down to `first`
        LazyRun,  // the run at `index` may take more, from `first` on
    };

    EKind kind;
    std::uint32_t index;
    const wchar_t* first;
    const wchar_t* second;
};

class CBacktrackStack {
public:
    CBacktrackStack() = default;  // cppcheck-suppress uninitMemberVar; see m_inline
    CBacktrackStack(const CBacktrackStack&) = delete;
    CBacktrackStack& operator=(const CBacktrackStack&) = delete;

    bool IsEmpty() const { return m_size == 0; }
    BacktrackEntry& Top() { return m_entries[m_size - 1]; }
    void Pop() { --m_size; }

    void Push(const BacktrackEntry& entry) {
        if (m_size == m_capacity) {
            Grow();
        }
        m_entries[m_size++] = entry;
    }

private:
    static constexpr std::size_t kInlineEntries = 64;

    void Grow() {
        auto larger = std::make_unique_for_overwrite<BacktrackEntry[]>(2 * m_capacity);
        std::copy_n(m_entries, m_size, larger.get());
        m_heap = std::move(larger);
        m_entries = m_heap.get();
        m_capacity *= 2;
    }

    std::size_t m_size = 0;
    std::size_t m_capacity = kInlineEntries;
    BacktrackEntry* m_entries = m_inline;
    std::unique_ptr<BacktrackEntry[]> m_heap;
    BacktrackEntry m_inline[kInlineEntries];  // left uninitialised: filled before it is read
};
