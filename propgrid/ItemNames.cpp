#include "propgrid/ItemNames.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace {

std::uint32_t CodeOf(const CGridItem& item) {
    // Spreads the few bits of the section's id over the whole code, so that the same name in many
    // sections gives many codes.
    constexpr std::size_t spread = 0x9E3779B1;
    return static_cast<std::uint32_t>(std::hash<std::wstring_view>{}(item.name) ^
                                      (item.section->id + 1) * spread);
}

}  // namespace

bool CItemNames::AddLast(const ItemList& items) {
    if (2 * (m_count + 1) > m_places.size()) {
        Grow();
    }
    const CGridItem& item = *items.back();
    const std::uint32_t code = CodeOf(item);
    const std::size_t last = m_places.size() - 1;
    std::size_t place = code & last;
    for (; m_places[place].id != FREE; place = (place + 1) & last) {
        if (m_places[place].code != code) {
            continue;
        }
        ++m_comparisons;
        const CGridItem& other = *items[m_places[place].id];
        if (other.section == item.section && other.name == item.name) {
            return false;
        }
    }
    m_places[place] = {code, item.id};
    ++m_count;
    return true;
}

void CItemNames::Clear() {
    std::fill(m_places.begin(), m_places.end(), Place());
    m_count = 0;
}

void CItemNames::Grow() {
    constexpr std::size_t fewest = 16;
    std::vector<Place> places(std::max(fewest, 2 * m_places.size()));
    places.swap(m_places);
    const std::size_t last = m_places.size() - 1;
    for (const Place& old : places) {
        if (old.id == FREE) {
            continue;
        }
        std::size_t place = old.code & last;
        while (m_places[place].id != FREE) {
            place = (place + 1) & last;
        }
        m_places[place] = old;
    }
}
