#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

namespace golden {

/// The lines that the listing has for a window, or under another of its headings; none for a heading it lacks.
[[nodiscard]] QStringList listed(const QString& heading);

/// Whether what was seen is what is listed, line by line; what differs is told.
[[nodiscard]] testing::AssertionResult isAsListed(const QString& heading, const QStringList& seen);

}  // namespace golden
