#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>
#include <cmath>
#include <map>

#include "screens/field_cells.h"
#include "tests/support/gui_thread.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

/// A record screen at several sizes of the host, with its boxes measured in the record's area.
class Layout : public support::Household {
protected:
    void open(const QString& node) {
        addMembers({u"Alexandrina Wilhelmina Featherstonehaugh-Cholmondeley"_s});
        exec(
            u"INSERT INTO HomeOwned (PersonID, Description, Zip, Comment) "
            "VALUES (1, 'The Riverside house with the long red brick barn o', '68154-1234', '1')"_s);
        openFor(u"Whole Family"_s, node);
    }
    void resize(int width, int height) {
        gui_.act([=] { host()->resize(width, height); });
    }
    /// Place of a control of the window in front.
    QRect place(const QString& name) {
        QRect found;
        gui_.look([&] {
            const auto* widget = front()->findChild<QWidget*>(name);
            found = QRect(widget->mapTo(host(), QPoint()), widget->size());
        });
        return found;
    }
    /// How many different left edges the boxes have that begin a column.
    int columns() {
        std::map<int, int> edges;
        for (const char* box : {"txtFields(1)", "txtFields(2)", "txtFields(3)", "txtFields(4)", "txtFields(11)",
                                "txtFields(12)", "txtFields(13)", "txtFields(14)"})
            ++edges[place(QString::fromLatin1(box)).left()];
        return static_cast<int>(edges.size());
    }
    bool scrollsSideways() {
        bool shown = false;
        gui_.look([&] { shown = front()->findChild<QScrollArea*>()->horizontalScrollBar()->isVisible(); });
        return shown;
    }
    static QWidget* front() { return host()->findChild<QMdiArea*>()->currentSubWindow()->widget(); }
    static QMainWindow* host() {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (auto* found = qobject_cast<QMainWindow*>(window)) return found;
        }
        return nullptr;
    }

private:
    support::GuiThread gui_{[] { return true; }};
};

TEST_F(Layout, ABoxIsAsWideAsWhatItHoldsAtEverySize) {
    open(u"Home"_s);
    const struct { int width, height, columns; } sizes[] = {{800, 600, 1}, {1024, 700, 2}, {1920, 1080, 3}};
    for (const auto& size : sizes) {
        SCOPED_TRACE(size.width);
        resize(size.width, size.height);
        EXPECT_EQ(columns(), size.columns);
        EXPECT_FALSE(scrollsSideways());
        const QRect zip = place(u"txtFields(7)"_s);
        EXPECT_LT(zip.width(), place(u"txtFields(2)"_s).width());
        EXPECT_NEAR(place(u"cbFields(1)"_s).center().y(), zip.center().y(), 1) << "state and Zip";
        // One narrow column has no room for the city beside them.
        EXPECT_EQ(place(u"txtFields(5)"_s).top() == zip.top(), size.columns > 1) << "city and Zip";
        // One column of labels for all frames.
        EXPECT_EQ(place(u"cbFields(0)"_s).left(), place(u"txtFields(1)"_s).left());
        EXPECT_GT(place(u"lblAttachments"_s).left(), place(u"cbFields(0)"_s).right());
        EXPECT_LT(place(u"txtFields(2)"_s).width(), 480) << "no wider than fifty characters";
    }
}

TEST_F(Layout, ATextWithoutRoomIsItsOwnTooltipUnlessThereIsATold) {
    open(u"Home"_s);
    const QString text = cell(u"SELECT Description FROM HomeOwned"_s);
    EXPECT_EQ(user.control(u"txtFields(2)"_s)["tooltip"_L1].toString(), text);
    EXPECT_EQ(user.control(u"txtFields(7)"_s)["tooltip"_L1].toString(), QString()) << "there is room for a Zip";
    EXPECT_EQ(user.control(u"txtFields(1)"_s)["tooltip"_L1].toString(), u"Type:  House, Condo, Apt., etc."_s);
    resize(1920, 1080);
    EXPECT_EQ(user.control(u"txtFields(2)"_s)["tooltip"_L1].toString(), QString()) << "there is room for all of it";
    user.pick(u"MDIHost.cbPerson"_s, u"Alexandrina Wilhelmina Featherstonehaugh-Cholmondeley"_s);
    EXPECT_EQ(user.control(u"MDIHost.cbPerson"_s)["tooltip"_L1].toString(),
              u"Alexandrina Wilhelmina Featherstonehaugh-Cholmondeley"_s);
}

TEST_F(Layout, ALongBoxShowsWholeLines) {
    open(u"Home"_s);
    for (const int height : {600, 700, 707, 713, 900}) {
        resize(1024, height);
        const QString box = u"txtFields(18)"_s;
        support::GuiThread gui([] { return true; });
        gui.look([&] {
            const auto* memo = front()->findChild<QPlainTextEdit*>(box);
            const qreal line = memo->document()->firstBlock().layout()->lineAt(0).height();
            const qreal room = memo->viewport()->height() - memo->document()->documentMargin();
            EXPECT_GE(room, 3 * line) << height;
            EXPECT_LT(room - std::floor(room / line) * line, 2) << height;
        });
    }
}

TEST_F(Layout, AnAddShowsNoCountOfAnotherRecord) {
    open(u"Home"_s);
    exec(u"INSERT INTO Attachments (BugNum, SeqNum) VALUES ('Hom_1_1', 1)"_s);
    user.click(u"cmdFirst"_s);
    ASSERT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  0"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
}

TEST(FieldWidths, GrowTogetherUpToTheirMost) {
    using screens::BoxRoom;
    const struct {
        std::vector<BoxRoom> needs;
        int room;
        std::vector<int> widths;
    } cases[] = {
        {{{50, 300}, {50, 300}}, 400, {200, 200}},
        {{{50, 300}, {80, 80}}, 300, {220, 80}},
        {{{50, 300}, {50, 300}}, 2000, {300, 300}},
        {{{50, 300}, {120, 300}}, 150, {50, 120}},  // too little is shared as the least
    };
    for (const auto& each : cases)
        EXPECT_EQ(screens::shared(each.needs, each.room), each.widths) << each.room;
}

}  // namespace
