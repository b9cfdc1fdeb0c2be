#pragma once

#include <exception>
#include <functional>

#include "platform/base/runtime_error.h"

namespace platform {

/// Any exception as an error that can be shown: a RuntimeError as it is, what the operating system said by its number,
/// 7 where the memory is full, and 51 with the exception's own words for what nobody foresaw.
[[nodiscard]] RuntimeError asRuntimeError(const std::exception& failure);

/// Runs a step whose failure doesn't matter to the ones behind it; false when it failed.
bool passOver(const std::function<void()>& step) noexcept;

}  // namespace platform
