// Switches the planted faults of build/mutants: see scripts/mutants.
#pragma once

#include <cstdlib>
#include <cstring>

namespace mutants {

// Whether the environment variable TAVRIN_MUTANT names this fault.
inline bool IsNamed(const char* fault) {
    const char* const active = std::getenv("TAVRIN_MUTANT");
    return active != nullptr && std::strcmp(active, fault) == 0;
}

}  // namespace mutants

// Asks the environment once at each place, since some run very often.
#define MUTANT_IS_ACTIVE(fault)                             \
    ([] {                                                   \
        static const bool active = mutants::IsNamed(fault); \
        return active;                                      \
    }())
