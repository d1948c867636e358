// The names of a grid's items, each unique within its section. It owns neither the items nor the texts, and
// keeps the items' ids: half of a pointer, since what it takes of the caches is what it costs.
//
// A table in one piece of memory, at most half full, so that adding a name costs one look at one place,
// mostly, however many there are. The library's set needs a piece for each name and looks at several of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "propgrid/GridItem.h"

class CItemNames {
public:
    // The items by id.
    using ItemList = std::vector<std::unique_ptr<CGridItem>>;

    // Adds the last of the items. False, and nothing changes, when its section holds another one of exactly
    // its name.
    bool AddLast(const ItemList& items);

    // Forgets all; keeps the memory for the next ones.
    void Clear();

    // How often two names were compared. It must not grow faster than the number of names.
    std::size_t GetComparisons() const { return m_comparisons; }

private:
    static constexpr std::uint32_t FREE = 0xFFFFFFFF;  // no item has this id

    struct Place {
        std::uint32_t code = 0;
        std::uint32_t id = FREE;
    };

    void Grow();

    std::vector<Place> m_places;  // a power of two, or none
    std::size_t m_count = 0;
    std::size_t m_comparisons = 0;
};
