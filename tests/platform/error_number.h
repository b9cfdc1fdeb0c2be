#pragma once

#include "platform/base/runtime_error.h"

namespace platform::test {

/// Number of the RuntimeError that an action ends in; 0 when it succeeds.
template <typename Action>
int errorNumber(Action action) {
    try {
        static_cast<void>(action());
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace platform::test
