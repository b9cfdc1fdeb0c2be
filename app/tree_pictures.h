#pragma once

#include <QIcon>
#include <vector>

namespace app {

constexpr int withoutData = 1;
constexpr int withData = 2;

/// The tree's two pictures, from 1 on: an empty ring, and a filled disc with a tick. They differ in shape, so that
/// nobody has to tell them by their colours.
[[nodiscard]] std::vector<QIcon> treePictures();

}  // namespace app
