#include <gtest/gtest.h>

#include <QSet>

#include "app/category_nodes.h"
#include "screens/catalogue/catalogue.h"
#include "screens/catalogue/screen_fields.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

/// One field of a screen: what the user gives it, and what the file must then hold.
struct Field {
    QString control, given, stored, column;
};

Field boxField(const data::Column& column, int box) {
    const QString control = u"txtFields(%1)"_s.arg(box);
    const QString number = QString::number(box) + u".25"_s;
    const QString text = u"é%1"_s.arg(box);
    switch (column.kind) {
        case data::FieldKind::Number:
        case data::FieldKind::Whole:
            return {control, number, number, column.name};
        case data::FieldKind::Date:
            return {control, u"May %1, 2035"_s.arg(box), u"2035-05-%1"_s.arg(box, 2, 10, QChar(u'0')), column.name};
        default:
            return {control, text, text, column.name};
    }
}

std::vector<Field> fieldsOf(const screens::ScreenDefinition& screen) {
    std::vector<Field> fields;
    int box = screen.firstField();
    int combo = screen.firstField();
    int check = 0;
    for (const data::Column& column : screens::screenFields(screen)) {
        if (column.kind == data::FieldKind::YesNo) {
            fields.push_back({u"chkFields(%1)"_s.arg(check++), QString(), u"-1"_s, column.name});
        } else if (column.shownIn == data::ShownIn::Box) {
            fields.push_back(boxField(column, box++));
        } else {
            const QString given = column.shownIn == data::ShownIn::StateCombo ? u"Texas"_s : u"Divorced"_s;
            fields.push_back({u"cbFields(%1)"_s.arg(combo++), given, given, column.name});
            ++box;
        }
    }
    return fields;
}

class EveryScreen : public support::Household {
protected:
    void fillIn(const Field& field) {
        if (field.control.startsWith(u"chk"_s)) {
            user.click(field.control);
        } else if (field.control.startsWith(u"cb"_s)) {
            user.pick(field.control, field.given);
        } else {
            user.fill(field.control, field.given);
        }
    }
    QString stored(const screens::ScreenDefinition& screen, const Field& field) {
        // A box that nothing stores is clear when its row is shown again.
        if (field.column.isEmpty()) return user.control(field.control)["value"_L1].toInt() == 0 ? u"-1"_s : u"kept"_s;
        return cell(u"SELECT \"%1\" FROM %2"_s.arg(field.column, screen.table));
    }
    void playThrough(const QString& node, const screens::ScreenDefinition& screen) {
        openNode(node);
        ASSERT_EQ(activeWindow(), screen.name);
        user.click(u"cmdCancel"_s);
        ASSERT_FALSE(forms().contains(QString(screen.name))) << "the empty screen stays";
        openNode(node);
        const std::vector<Field> fields = fieldsOf(screen);
        for (const Field& field : fields)
            fillIn(field);
        user.click(u"cmdUpdate"_s);
        ASSERT_EQ(status(), u"Record: 1 of 1"_s) << boxText().toStdString();
        for (const Field& field : fields)
            EXPECT_EQ(stored(screen, field), field.stored) << field.control.toStdString();
        user.click(u"cmdClose"_s);
        // What the screen shows of a row is worth as much as the row.
        openNode(node);
        saveUnchanged();
        for (const Field& field : fields)
            EXPECT_EQ(stored(screen, field), field.stored) << "second save: " << field.control.toStdString();
        user.click(u"cmdClose"_s);
    }
};

TEST_F(EveryScreen, KeepsEveryFieldAndSavesWhatItShows) {
    addMembers({u"Ann Larkin"_s});
    startFor(u"Ann Larkin"_s);
    QSet<QString> played;
    for (const app::CategoryNode& node : app::categoryNodes()) {
        const QString key(node.key);
        const screens::ScreenDefinition* screen = screens::screenDefinition(QString(node.opens));
        // A second node of the same window adds nothing.
        if (!screen || screen->name == "frmKinbook"_L1 || key.endsWith(u'1')) continue;
        SCOPED_TRACE(QString(screen->name).toStdString());
        if (screen->shared) exec(u"DELETE FROM "_s + screen->table);
        playThrough(key, *screen);
        if (HasFatalFailure()) return;
        played.insert(screen->name);
    }
    for (const screens::ScreenDefinition& screen : screens::ownedScreens())
        EXPECT_TRUE(played.contains(screen.name)) << QString(screen.name).toStdString();
}

}  // namespace
