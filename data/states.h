#pragma once

#include <QLatin1StringView>
#include <span>

namespace data {

/// What the state combos offer, in their order: "--" for no state, then the states, the federal district and the
/// territories by name.
///
/// A combo starts a new record on its first entry, so without "--" every new address would lie in Alabama.
std::span<const QLatin1StringView> stateNames();

}  // namespace data
