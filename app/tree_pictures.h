#pragma once

#include <QIcon>
#include <vector>

namespace app {

/// The tree's two pictures: 1 an empty ring, 2 a filled disc with a tick. They differ in shape, so that nobody has to
/// tell them by their colours.
[[nodiscard]] std::vector<QIcon> treePictures();

}  // namespace app
