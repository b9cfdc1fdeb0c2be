#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <csignal>

#include "tests/support/line_protocol.h"
#include "tests/support/print.h"
#include "tests/support/refused.h"
#include "tests/support/test_program.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

class UserTest : public ::testing::Test {
protected:
    UserTest() { user.start(); }

    QJsonObject say(const QString& line) { return QJsonDocument::fromJson(protocol.answer(line.toUtf8())).object(); }
    static QString dialogText(const QJsonObject& state) { return state[u"dialog"_s][u"text"_s].toString(); }

    User user{testProgram()};
    EventLog log{user};
    LineProtocol protocol{user};
};

TEST_F(UserTest, ABoxIsAnsweredByTheNextCommands) {
    const QJsonObject asked = say(u"click cmdAsk"_s)[u"dialog"_s].toObject();
    EXPECT_EQ(asked, (QJsonObject{{u"kind"_s, u"message"_s},
                                  {u"name"_s, u"MessageBox"_s},
                                  {u"title"_s, u"Asking"_s},
                                  {u"text"_s, u"Sure?"_s},
                                  {u"icon"_s, u"none"_s},
                                  {u"buttons"_s, QJsonArray{u"Yes"_s, u"No"_s}}}));
    EXPECT_EQ(dialogText(say(u"answer Yes"_s)), u"Done."_s) << "the handler went on to its second box";
    EXPECT_TRUE(say(u"answer OK"_s)[u"dialog"_s].isNull());
    EXPECT_EQ(log.news(), u"Yes;"_s);
    say(u"click cmdAsk"_s);
    say(u"key Escape"_s);
    EXPECT_TRUE(user.state()[u"dialog"_s].isNull());
    EXPECT_EQ(log.news(), u"No;"_s);
}

TEST_F(UserTest, RefusesWhatNoUserCouldDo) {
    const std::vector<std::pair<QString, QString>> refusals{
        {u"click cmdHidden"_s, u"cmdHidden is hidden"_s},
        {u"click cmdDisabled"_s, u"cmdDisabled is disabled"_s},
        {u"click cmdNone"_s, u"frmTest has no control cmdNone"_s},
        {u"tool tbAttach"_s, u"tbAttach is disabled"_s},
        {u"menu mOff"_s, u"mOff is disabled"_s},
        {u"menu mExit"_s, u"the menu has no entry mExit"_s},
        {u"pick cbFields(1) Cy"_s, u"the list of cbFields(1) did not open"_s},
        {u"pick cbFields(0) Dan"_s, u"cbFields(0) has no entry \"Dan\""_s},
        {u"answer OK"_s, u"no message box is open"_s},
        {u"key Hyper"_s, u"unknown key: Hyper"_s},
        {u"dance"_s, u"unknown command: dance"_s},
        {u"fill txtFields(0)"_s, u"wrong number of arguments for fill"_s},
        {u"type \"open"_s, u"the string is not closed"_s},
        {u"start"_s, u"the program is running already"_s},
    };
    for (const auto& [line, reason] : refusals) {
        EXPECT_EQ(say(line), (QJsonObject{{u"ok"_s, false}, {u"error"_s, reason}})) << line.toStdString();
    }
    EXPECT_EQ(log.news(), QString());
    say(u"click cmdAsk"_s);
    EXPECT_EQ(say(u"click cmdSave"_s)[u"error"_s].toString(),
              u"cmdSave is out of reach: MessageBox \"Asking\" is open in front of it"_s);
}

TEST_F(UserTest, TypesEveryCharacter) {
    const QString odd = u"Añ \"q\" (x) £€ 漢 \U0001F600 \\"_s;
    say(u"fill txtFields(0) \"Añ \\\"q\\\" (x) £€ 漢 \\ud83d\\ude00 \\\\\""_s);
    EXPECT_EQ(user.text(u"txtFields(0)"_s), odd);

    QString lines;
    for (int i = 0; i < 200; ++i)
        lines += u"Line %1 of a long text, (two) words\r\n"_s.arg(i);
    user.fill(u"txtFields(2)"_s, lines);
    EXPECT_EQ(user.text(u"txtFields(2)"_s), lines);
    user.fill(u"txtFields(2)"_s, {});
    EXPECT_EQ(user.text(u"txtFields(2)"_s), QString());
    user.fill(u"txtFields(3)"_s, u"x"_s);
    EXPECT_EQ(user.text(u"txtFields(3)"_s), u"fixed"_s) << "a locked box takes no typing";
}

TEST_F(UserTest, ReadsControls) {
    user.fill(u"txtFields(1)"_s, u"abc"_s);
    const QJsonObject box = say(u"get txtFields(1)"_s);
    EXPECT_EQ(box, (QJsonObject{{u"ok"_s, true},
                                {u"name"_s, u"txtFields(1)"_s},
                                {u"type"_s, u"TextBox"_s},
                                {u"text"_s, u"abc"_s},
                                {u"visible"_s, true},
                                {u"enabled"_s, true},
                                {u"locked"_s, false},
                                {u"masked"_s, false},
                                {u"maxLength"_s, 5},
                                {u"selStart"_s, 3},
                                {u"selLength"_s, 0},
                                {u"tooltip"_s, QString()},
                                {u"label"_s, u"Label &1:"_s},
                                {u"frame"_s, u"Owner Information"_s}}));
    QStringList names;
    const QJsonArray controls = user.form()[u"controls"_s].toArray();
    for (const QJsonValue& control : controls)
        names.append(control[u"name"_s].toString());
    for (const auto& name : {u"txtFields(3)"_s, u"cmdHidden"_s, u"Toolbar1"_s, u"tbPrint"_s, u"mFile"_s, u"mNote"_s}) {
        EXPECT_EQ(names.count(name), 1) << name.toStdString();
    }
}

TEST_F(UserTest, WhatTheProgramWouldNotSurviveEndsTheProcess) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    constexpr int died = 70;
    EXPECT_EXIT(say(u"menu mDie"_s), testing::ExitedWithCode(died), "");
}

TEST(Drive, EndsWithALineThatTellsWhatKilledIt) {
    QProcess drive;
    drive.start(QStringLiteral(KINBOOK_DRIVE), {QDir::tempPath()});
    drive.write("state\n");
    ASSERT_TRUE(drive.waitForStarted() && drive.waitForReadyRead());
    ASSERT_EQ(kill(static_cast<pid_t>(drive.processId()), SIGABRT), 0);
    ASSERT_TRUE(drive.waitForFinished());
    EXPECT_EQ(drive.exitCode(), 70);
    const QByteArray last = drive.readAllStandardOutput().trimmed().split('\n').last();
    EXPECT_EQ(QJsonDocument::fromJson(last).object(),
              (QJsonObject{{u"ok"_s, false}, {u"error"_s, u"died: signal 06"_s}}));
}

}  // namespace

}  // namespace support
