#include "propgrid/model/Value.h"

#include <algorithm>
#include <cstring>

namespace tavrin::propgrid {

namespace {

bool IsSame(const FontPointer& a, const FontPointer& b) {
    return a == b || std::memcmp(a.get(), b.get(), sizeof(FontValue)) == 0;
}

template <class T>
bool IsSame(const T& a, const T& b) {
    return a == b;
}

}  // namespace

std::wstring FontValue::GetFaceName() const {
    return {std::begin(faceName), std::find(std::begin(faceName), std::end(faceName), u'\0')};
}

bool IsSameValue(const Value& a, const Value& b) {
    return std::visit(
        [&b](const auto& current) { return IsSame(current, std::get<std::decay_t<decltype(current)>>(b)); },
        a);
}

}  // namespace tavrin::propgrid
