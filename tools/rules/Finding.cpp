#include "tools/rules/Finding.h"

namespace tavrin::tools {

std::string_view SeverityName(ESeverity severity) {
    switch (severity) {
        case SV_ERROR:
            return "error";
        case SV_WARNING:
            return "warning";
        default:
            return "note";
    }
}

}  // namespace tavrin::tools
