// Steps from the fuzzer's bytes. Any bytes are steps; those that a user could not take, a release without a
// press, do not come.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tests/fuzz/GridStep.h"
#include "tests/fuzz/SimpleGrid.h"

namespace tests {

// Reads bytes; zeros after the last.
class CBytes {
public:
    CBytes(const std::uint8_t* data, std::size_t size) : m_data(data), m_end(data + size) {}
    bool IsAtEnd() const { return m_data == m_end; }
    unsigned Next() { return IsAtEnd() ? 0 : *m_data++; }
    int Below(std::size_t count) { return static_cast<int>(Next() % count); }
    bool Flag() { return Next() % 2 == 1; }

private:
    const std::uint8_t* m_data;
    const std::uint8_t* m_end;
};

class CGridDecoder {
public:
    // Points are mostly on what the grid painted.
    CGridDecoder(CBytes& bytes, const CSimpleGrid& grid) : m_bytes(bytes), m_grid(grid) {}

    // A client's call for about every third step.
    Step Decode(bool buttonDown);
    Step DecodeClientStep();

private:
    Step DecodeUserStep(bool buttonDown);
    void DecodeNumbers(Step& step);
    Id DecodeItem();
    Id DecodeSection();
    Point DecodePoint();
    Rect DecodeTarget();
    int DecodeNear(int low, int high);

    CBytes& m_bytes;
    const CSimpleGrid& m_grid;
};

}  // namespace tests
