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
    /// The same, and opens a category.
    void openFor(const QString& selection, const QString& node);
    void openFor(const QStringList& members, const QString& selection, const QString& node);

    /// Fills one more box of the record under way and saves it.
    void save(const QString& box, const QString& text);
    /// The same in a record that is added, or in the one on screen.
    void add(const QString& box, const QString& text);
    void change(const QString& box, const QString& text);
    /// Edits the record on screen without a change, to the save or to the cancel.
    void saveUnchanged();
    void cancelEdit();
    void deleteRecord();

    /// Title of the open box; empty if none is open.
    [[nodiscard]] QString boxTitle() { return user.dialog()[QLatin1StringView("title")].toString(); }
    [[nodiscard]] QString boxText() { return user.dialog()[QLatin1StringView("text")].toString(); }
    [[nodiscard]] QString boxIcon() { return user.dialog()[QLatin1StringView("icon")].toString(); }
    /// Title of the open box, which is then answered with OK.
    QString dismissBox();
    /// Title and text of the open box, as "Title: text", which is then answered with OK.
    QString told();
    [[nodiscard]] QString status() { return user.text(QStringLiteral("lblStatus")); }
    [[nodiscard]] bool running();
    [[nodiscard]] QString activeWindow();
    [[nodiscard]] QStringList forms();
    /// Name of the control that has the focus, and what labels it.
    [[nodiscard]] QString focus();
    [[nodiscard]] QString focusLabel() { return user.control(focus())[QLatin1StringView("label")].toString(); }
    [[nodiscard]] bool isVisible(const QString& control) { return is(control, "visible"); }
    [[nodiscard]] bool isEnabled(const QString& control) { return is(control, "enabled"); }
    [[nodiscard]] bool isLocked(const QString& control) { return is(control, "locked"); }
    /// How many characters of a box are selected.
    [[nodiscard]] int selected(const QString& control);
    [[nodiscard]] QStringList items(const QString& combo);
    /// The rows of a grid or list, each as "cell|cell"; of the topmost form's for no name.
    [[nodiscard]] QStringList rows(const QString& view = {});
    [[nodiscard]] int personID();
    [[nodiscard]] QString attachKey();
    /// The nodes that are selected in the tree, by their keys.
    [[nodiscard]] QString selectedNode();
    /// Picture of a node of the tree, by its key.
    [[nodiscard]] int image(const QString& key);
    [[nodiscard]] bool treeEnabled();
    /// Opens the branches above a node and clicks it.
    void openNode(const QString& key);

    User user;

private:
    [[nodiscard]] bool is(const QString& control, const char* what);
};

}  // namespace support
