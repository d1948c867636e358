#include "LispError.h"

const char* CLispError::what() const noexcept {
    return "LISP error";
}
