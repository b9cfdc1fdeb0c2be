#include <gtest/gtest.h>

#include <QRegularExpression>

#include "tests/support/print.h"
#include "tests/support/test_program.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

class FormsTest : public ::testing::Test {
protected:
    FormsTest() { user.start(); }

    void play(const QString& gesture) {
        const QString word = gesture.section(u' ', 1);
        if (gesture.startsWith(u"click "_s)) user.click(word);
        if (gesture.startsWith(u"key "_s)) user.key(word);
        if (gesture.startsWith(u"tool "_s)) user.tool(word);
        if (gesture.startsWith(u"menu "_s)) user.menu(word);
    }
    QString focus() { return user.state()[u"focus"_s].toString(); }

    User user{testProgram()};
    EventLog log{user};
};

struct Move {
    QString gesture;
    bool validates;
    QString effect;  ///< the event that it leads to
    QString focus;   ///< where it leads to
};

const std::vector<Move>& moves() {
    static const std::vector<Move> all{
        {u"click cmdSave"_s, true, u"Save;"_s, u"cmdSave"_s},
        {u"click chkFields(0)"_s, true, u"Check 1;"_s, u"chkFields(0)"_s},
        {u"click txtFields(2)"_s, true, {}, u"txtFields(2)"_s},
        {u"click cbFields(0)"_s, true, {}, u"cbFields(0)"_s},
        {u"key Tab"_s, true, {}, u"txtFields(1)"_s},
        {u"key Shift+Tab"_s, true, {}, u"cmdFail"_s},
        {u"key Alt+S"_s, true, u"Save;"_s, u"cmdSave"_s},
        {u"key Alt+2"_s, true, {}, u"txtFields(2)"_s},
        {u"tool tbPrint"_s, false, u"tbPrint;"_s, u"txtFields(0)"_s},
        {u"menu mNote"_s, false, u"mNote;"_s, u"txtFields(0)"_s},
        {u"click MDIHost.cmdAddNew"_s, false, {}, u"cmdAddNew"_s},
        {u"click lblLabels(1)"_s, false, {}, u"txtFields(0)"_s},
    };
    return all;
}

TEST_F(FormsTest, ABoxIsCheckedBeforeTheFocusLeavesIt) {
    for (const Move& move : moves()) {
        SCOPED_TRACE(move.gesture.toStdString());
        user.fill(u"txtFields(0)"_s, u"good"_s);
        static_cast<void>(log.news());
        play(move.gesture);
        // The key that held a modifier goes to the form first.
        static const QRegularExpression modifier(u"Down (Shift\\+Shift|Alt\\+Alt);"_s);
        EXPECT_EQ(log.news().remove(modifier), (move.validates ? u"Validate;"_s : QString()) + move.effect);
        EXPECT_EQ(focus(), move.focus);
        if (move.gesture == u"click chkFields(0)"_s) user.click(u"chkFields(0)"_s);
    }
}

TEST_F(FormsTest, AHeldFocusDropsWhatWouldHaveMovedIt) {
    for (const Move& move : moves()) {
        if (!move.validates) continue;
        SCOPED_TRACE(move.gesture.toStdString());
        user.fill(u"txtFields(0)"_s, u"bad"_s);
        static_cast<void>(log.news());
        play(move.gesture);
        EXPECT_EQ(user.dialog()[u"text"_s].toString(), u"That is bad."_s);
        user.answer(u"OK"_s);
        EXPECT_TRUE(user.dialog().isEmpty()) << "the box of the check leads to no second check";
        const QString events = log.news();
        EXPECT_TRUE(events.endsWith(u"Validate;"_s)) << events.toStdString();
        EXPECT_EQ(focus(), u"txtFields(0)"_s);
    }
}

TEST_F(FormsTest, AfterAHeldFocusTheNextClickCounts) {
    user.fill(u"txtFields(1)"_s, u"mute"_s);
    user.click(u"cmdSave"_s);
    EXPECT_EQ(focus(), u"txtFields(1)"_s);
    user.fill(u"txtFields(1)"_s, u"loud"_s);
    static_cast<void>(log.news());
    user.click(u"cmdSave"_s);
    EXPECT_EQ(log.news(), u"Save;"_s);
}

TEST_F(FormsTest, TheFormSeesKeysAndTheirCharacters) {
    const std::vector<std::pair<QString, QString>> keys{
        {u"a"_s, u"Down A;Press 97;"_s},
        {u"A"_s, u"Down Shift+A;Press 65;"_s},
        {u"7"_s, u"Down 7;Press 55;"_s},
        {u"é"_s, u"Down \u00C9;Press 233;"_s},
        {u"Space"_s, u"Down Space;Press 32;"_s},
        {u"Return"_s, u"Down Return;Press 13;"_s},
        {u"Escape"_s, u"Down Esc;Press 27;"_s},
        {u"Backspace"_s, u"Down Backspace;Press 8;"_s},
        {u"Ctrl+C"_s, u"Down Ctrl+C;Press 3;"_s},
        {u"Ctrl+X"_s, u"Down Ctrl+X;Press 24;"_s},
        {u"Ctrl+Return"_s, u"Down Ctrl+Return;Press 10;"_s},
        {u"Delete"_s, u"Down Del;"_s},
        {u"Home"_s, u"Down Home;"_s},
        {u"End"_s, u"Down End;"_s},
        {u"PageUp"_s, u"Down PgUp;"_s},
        {u"PageDown"_s, u"Down PgDown;"_s},
        {u"Ctrl+Down"_s, u"Down Ctrl+Down;"_s},
        {u"Insert"_s, u"Down Ins;"_s},
        {u"F5"_s, u"Down F5;"_s},
        // Characters whose codes other systems give to moving keys.
        {u"("_s, u"Down (;Press 40;"_s},
        {u"&"_s, u"Down &;Press 38;"_s},
        {u"."_s, u"Down .;Press 46;"_s},
        {u"-"_s, u"Down -;Press 45;"_s},
        {u"'"_s, u"Down ';Press 39;"_s},
        {u"$"_s, u"Down $;Press 36;"_s},
    };
    user.click(u"txtFields(2)"_s);
    for (const auto& [key, events] : keys) {
        static_cast<void>(log.news());
        user.key(key);
        const QString seen = log.news();
        EXPECT_TRUE(seen.endsWith(events)) << key.toStdString() << ": " << seen.toStdString();
        EXPECT_EQ(seen.count(u"Press"_s), events.count(u"Press"_s)) << key.toStdString();
    }
    static_cast<void>(log.news());
    user.compose(u"\u00E9l"_s);
    EXPECT_EQ(log.news(), u"Press 233;Press 108;"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(log.news(), QString()) << "a Tab that moves the focus is no key of the form";
}

TEST_F(FormsTest, KeysOfABoxAreNotKeysOfTheFormBehind) {
    user.click(u"cmdModal"_s);
    user.click(u"cmdTell"_s);
    user.key(u"x"_s);
    user.answer(u"OK"_s);
    EXPECT_EQ(user.dialog()[u"title"_s].toString(), u"A Dialog"_s);
    user.key(u"x"_s);
    EXPECT_EQ(user.dialog()[u"title"_s].toString(), u"Key 120"_s);
}

TEST_F(FormsTest, ADialogKeepsItsBoxesWhileHidden) {
    user.click(u"cmdModal"_s);
    EXPECT_EQ(user.state()[u"dialog"_s][u"title"_s].toString(), u"A Dialog"_s);
    user.fill(u"txtAccount"_s, u"secret"_s);
    user.click(u"cmdHide"_s);
    user.click(u"cmdModal"_s);
    EXPECT_EQ(user.text(u"txtAccount"_s), QString()) << "the next load is a fresh one";
    user.key(u"Alt+C"_s);
    EXPECT_EQ(log.news(), u"Hidden secret;Unloaded;"_s);
    EXPECT_EQ(user.state()[u"focus"_s].toString(), u"cmdModal"_s);
}

TEST_F(FormsTest, AVetoKeepsTheForm) {
    user.menu(u"mClose"_s);
    user.answer(u"No"_s);
    EXPECT_EQ(user.state()[u"active"_s].toString(), u"frmTest"_s);
    user.menu(u"mClose"_s);
    user.answer(u"Yes"_s);
    EXPECT_TRUE(user.state()[u"active"_s].isNull());
    user.menu(u"mExit"_s);
    EXPECT_FALSE(user.state()[u"running"_s].toBool()) << "without a child the host's own menu stands in the bar";
}

TEST_F(FormsTest, AFailureThatNobodyHandlesOrForesawIsShownAndTheSessionGoesOn) {
    user.click(u"cmdFail"_s);
    EXPECT_EQ(user.dialog()[u"text"_s].toString(), u"91 - Object variable or With block variable not set"_s);
    EXPECT_EQ(user.dialog()[u"title"_s].toString(), u"Kinbook"_s);
    user.answer(u"OK"_s);
    user.menu(u"mThrow"_s);
    EXPECT_EQ(user.dialog()[u"text"_s].toString(), u"51 - Internal error (nobody foresaw it)"_s);
    EXPECT_EQ(user.dialog()[u"icon"_s].toString(), u"critical"_s);
    user.answer(u"OK"_s);
    user.click(u"cmdSave"_s);
    EXPECT_EQ(log.news(), u"Save;"_s);
}

TEST_F(FormsTest, AComboClicksForEachChoiceOfTheUser) {
    user.pick(u"cbFields(0)"_s, u"Ann"_s);
    user.key(u"Down"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(log.news().remove(u"Down Down;"_s), u"Combo 0;Combo 1;Combo 2;"_s);
    user.fill(u"cbFields(0)"_s, u"Bob"_s);
    user.key(u"Return"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(log.news().count(u"Combo"_s), 0) << "typing an entry's text is no choice of it";
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Bob"_s);

    user.click(u"cbFields(1)"_s);
    user.key(u"Down"_s);
    user.type(u"x"_s);
    EXPECT_EQ(user.text(u"cbFields(1)"_s), QString()) << "a locked combo takes neither a choice nor typing";
}

TEST_F(FormsTest, ACheckBoxClicksWhenItChanges) {
    user.click(u"chkFields(0)"_s);
    user.key(u"Space"_s);
    EXPECT_EQ(log.news().remove(u"Down Space;Press 32;"_s), u"Check 1;Check 0;"_s);
}

}  // namespace

}  // namespace support
