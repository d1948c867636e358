// The two patterns of the item files in the notation of other libraries.
#pragma once

namespace tavrin::benchmarks {

inline constexpr char kPeerParameterPattern[] = R"x(^\$([0-9]*)[ ]*=[ ]*"(.*)"([IDR])(.*)$)x";
inline constexpr char kPeerPlaceholderPattern[] = R"(^.*<<([0-9]*)>>.*)";

}  // namespace tavrin::benchmarks
