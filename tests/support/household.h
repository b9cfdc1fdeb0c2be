#pragma once

#include <gtest/gtest.h>

#include <QString>

#include "tests/support/print.h"
#include "tests/support/test_folder.h"
#include "tests/support/user.h"

namespace support {

/// An application folder of its own, with an empty family in it, and a user in front of the program there.
class Household : public testing::Test, protected TestFolder {
protected:
    Household();

    /// Changes the database file from outside the program.
    void exec(const QString& statement) const;
    /// First column of the statement's first row as text; "null" for a null and for no row.
    [[nodiscard]] QString cell(const QString& statement) const;
    /// Adds members in the order of the family.
    void addMembers(const QStringList& legalNames) const;

    /// Starts the program and selects a member, or the whole family.
    void startFor(const QString& selection);

    /// Title of the open box; empty if none is open.
    [[nodiscard]] QString boxTitle() { return user.dialog()[QLatin1StringView("title")].toString(); }
    [[nodiscard]] QString boxText() { return user.dialog()[QLatin1StringView("text")].toString(); }
    [[nodiscard]] QString boxIcon() { return user.dialog()[QLatin1StringView("icon")].toString(); }
    /// Title of the open box, which is then answered with OK.
    QString dismissBox();
    [[nodiscard]] QString status() { return user.text(QStringLiteral("lblStatus")); }
    [[nodiscard]] bool running();
    [[nodiscard]] QString activeWindow();
    [[nodiscard]] QStringList forms();
    /// Picture of a node of the tree, by its key.
    [[nodiscard]] int image(const QString& key);
    [[nodiscard]] bool treeEnabled();
    /// Opens the branches above a node and clicks it.
    void openNode(const QString& key);

    User user;
};

}  // namespace support
