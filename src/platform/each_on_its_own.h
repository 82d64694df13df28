// Where faults are ignored by design: a statement that fails is abandoned, and the next one runs.
#pragma once

#include "platform/fault.h"

namespace platform {

template <class... Statements>
void eachOnItsOwn(const Statements&... statements) {
  const auto alone = [](const auto& statement) {
    try {
      statement();
    } catch (const Fault&) {  // what the statement would have written stays as it was
    }
  };
  (alone(statements), ...);
}

}  // namespace platform
