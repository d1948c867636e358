// The shared libraries under short names.
#pragma once

namespace tavrin::encoding {}
namespace tavrin::lisp {}
namespace tavrin::units {}

namespace devhost {

namespace encoding = tavrin::encoding;
namespace lisp = tavrin::lisp;
namespace units = tavrin::units;

}  // namespace devhost
