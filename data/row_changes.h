#pragma once

namespace data {

struct OpenFile;

/// Lets every snapshot put a row's values aside before a statement on this file changes or deletes it.
void watchRowChanges(OpenFile& file);

}  // namespace data
