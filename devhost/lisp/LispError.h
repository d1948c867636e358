// A mistake in a LISP text or in its evaluation.
#pragma once

#include "UserError.h"

class CLispError : public CUserError {
public:
    using CUserError::CUserError;
};
