// Random grids: of any size, contents, settings, focus and scroll position. The same seed makes the same
// grid.
#pragma once

#include <random>

#include "tests/windows/propgrid/MirroredGrid.h"

namespace tests {

class CRandom {
public:
    explicit CRandom(unsigned seed) : m_engine(seed) {}

    // From `first` to `last`, both included.
    int Between(int first, int last) {
        return first + static_cast<int>(m_engine() % static_cast<unsigned>(last - first + 1));
    }
    bool Chance(int percent) { return Between(1, 100) <= percent; }
    template <typename Container>
    const auto& Pick(const Container& container) {
        return *(std::begin(container) + Between(0, static_cast<int>(std::size(container)) - 1));
    }
    COLORREF Color();
    // A pixel of the client area or one near it.
    CRect Area(CSize size);

private:
    std::mt19937 m_engine;
};

// What WM_GETFONT answers for the next grid.
void ChooseFont(CRandom& random, CMirrorParent& parent);
CSize ChooseSize(CRandom& random);
// Gives a new grid its settings and contents, and takes it through changes of both.
void FillAtRandom(CRandom& random, CMirroredGrid& grid);

}  // namespace tests
