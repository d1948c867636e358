#include "tools/rules/Finding.h"

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
