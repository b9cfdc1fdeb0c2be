#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>

#include "output/printable_screen.h"
#include "output/record_output.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"
#include "platform/print/device_in_use.h"
#include "platform/print/print_device.h"
#include "tests/data/hostile_disk.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class RecordOutput : public support::Household {
protected:
    void startWith(const QStringList& members) {
        addMembers(members);
        startFor(u"Whole Family"_s);
    }
    QString saved(const QString& name) { return QString::fromUtf8(bytesOf(name)); }
    void save(const QString& key, const QString& name) {
        user.tool(key);
        user.choose(path(name));
    }
    /// Texts of a job's lines.
    static QStringList lines(const QJsonValue& job) {
        QStringList texts;
        const QJsonArray pages = job.toArray();
        for (const QJsonValue& page : pages) {
            const QJsonArray printed = page.toArray();
            for (const QJsonValue& line : printed)
                texts << line["text"_L1].toString();
        }
        return texts;
    }
};

TEST_F(RecordOutput, NeverTakesThePlaceOfTheBook) {
    startWith({u"Ann Larkin"_s});
    const QString before = cell(u"SELECT COUNT(*) || LegalName FROM Person"_s);
    write(u"Attachments/deed.pdf"_s, "deed");
    write(u"FamilyInfo_Empty.mdb"_s, "empty");
    ASSERT_EQ(link(path(u"Attachments/deed.pdf"_s).toLocal8Bit().constData(),
                   path(u"another name.txt"_s).toLocal8Bit().constData()),
              0);
    const QStringList ours{u"FamilyInfo.mdb"_s,         u"./Attachments/../FamilyInfo.mdb"_s,
                           u"FamilyInfo.mdb-journal"_s, u"FamilyInfo_Empty.mdb"_s,
                           u"Attachments/deed.pdf"_s,   u"another name.txt"_s};
    for (const QString& target : ours) {
        save(u"tbSave"_s, target);
        EXPECT_EQ(boxText(), u"70 - Permission denied"_s) << target.toStdString();
        EXPECT_EQ(dismissBox(), u"SaveFile Error"_s);
        save(u"tbSaveAll"_s, target);
        EXPECT_EQ(boxText(), u"70 - Permission denied"_s) << target.toStdString();
        EXPECT_EQ(dismissBox(), u"SaveAll Error"_s);
    }
    save(u"tbSaveAll"_s, u"SplashDef.txt"_s);
    EXPECT_EQ(dismissBox(), u"SaveAll Error"_s);
    save(u"tbSave"_s, u"SplashDef.txt"_s);
    EXPECT_EQ(dismissBox(), u"Protected File"_s);
    user.menu(u"mBackup"_s);
    user.choose(path(u"FamilyInfo_Empty.mdb"_s));
    user.answer(u"Yes"_s);
    EXPECT_EQ(told(), u"BackupDB Error: 70 - Permission denied"_s);
    openNode(u"AssetLiquidation"_s);
    save(u"tbSave"_s, u"FamilyInfo.mdb"_s);
    EXPECT_EQ(told(), u"Kinbook: 70 - Permission denied"_s);
    EXPECT_EQ(cell(u"SELECT COUNT(*) || LegalName FROM Person"_s), before);
    EXPECT_EQ(saved(u"Attachments/deed.pdf"_s), u"deed"_s);
    EXPECT_EQ(saved(u"FamilyInfo_Empty.mdb"_s), u"empty"_s);
    EXPECT_FALSE(QFile::exists(path(u"FamilyInfo.mdb-journal"_s)));
}

TEST_F(RecordOutput, PrintsTheRecordOnScreen) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s});
    user.setPrinter(path(u"record.pdf"_s));
    user.click(u"cmdNext"_s);
    user.tool(u"tbPrint"_s);
    const QJsonArray jobs = user.jobs();
    ASSERT_EQ(jobs.size(), 1);
    const QStringList text = lines(jobs[0]);
    EXPECT_EQ(text.mid(0, 6), QStringList(6, QString()));
    EXPECT_TRUE(text[6].startsWith(u"     The "_s)) << text[6].toStdString();
    EXPECT_TRUE(text[9].startsWith(u"      1.  "_s)) << text[9].toStdString();
    EXPECT_TRUE(text[9].endsWith(u" - Bob Larkin"_s)) << text[9].toStdString();
    const QJsonValue line = jobs[0][0][9];
    EXPECT_EQ(line["font"_L1].toString(), u"Courier New"_s);
    EXPECT_TRUE(line["bold"_L1].toBool());
    EXPECT_EQ(line["size"_L1].toDouble(), 10);
    EXPECT_EQ(line["x"_L1].toDouble(), 0);
    EXPECT_DOUBLE_EQ(line["y"_L1].toDouble(), 9 * 226.5625);
    EXPECT_TRUE(saved(u"record.pdf"_s).startsWith(u"%PDF"_s));
    EXPECT_TRUE(user.jobs().isEmpty());
}

TEST_F(RecordOutput, PrintAllMakesAJobOfEachRecordAndEndsOnTheFirst) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s});
    user.menu(u"mPrintAll"_s);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(dismissBox(), u"No Printer"_s);
    EXPECT_EQ(boxTitle(), u""_s);
    user.setPrinter(path(u"all.pdf"_s));
    user.click(u"cmdLast"_s);
    user.menu(u"mPrintAll"_s);
    const QJsonArray jobs = user.jobs();
    ASSERT_EQ(jobs.size(), 3);
    EXPECT_TRUE(lines(jobs[2])[9].endsWith(u"Cy Larkin"_s));
    EXPECT_EQ(status(), u"Record: 1 of 3"_s);
}

TEST_F(RecordOutput, ChangesKeepAllRecordsFromBeingWritten) {
    startWith({u"Ann Larkin"_s});
    user.setPrinter(path(u"all.pdf"_s));
    user.click(u"City:"_s);
    user.type(u"Q"_s);
    for (const QString& key : {u"tbPrintAll"_s, u"tbSaveAll"_s}) {
        user.tool(key);
        EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
        EXPECT_EQ(boxTitle(), u""_s);
    }
    EXPECT_TRUE(user.jobs().isEmpty());
    user.tool(u"tbPrint"_s);
    EXPECT_EQ(user.jobs().size(), 1);
}

TEST_F(RecordOutput, SavesTheRecordOverAnyFileButTheProtectedOne) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s});
    const QString definition = saved(u"SplashDef.txt"_s);
    save(u"tbSave"_s, u"SplashDef"_s);
    EXPECT_EQ(dismissBox(), u"Protected File"_s);
    EXPECT_EQ(saved(u"SplashDef.txt"_s), definition);
    user.tool(u"tbSave"_s);
    EXPECT_EQ(user.dialog()["title"_L1].toString(), u"Save As"_s);
    user.cancel();
    EXPECT_EQ(dismissBox(), u"No Filename"_s);
    write(u"splashdef.txt"_s, QByteArray(100'000, 'x'));
    save(u"tbSave"_s, u"splashdef.txt"_s);
    const QString text = saved(u"splashdef.txt"_s);
    EXPECT_TRUE(text.startsWith(u"     The "_s));
    EXPECT_TRUE(text.contains(u" - Ann Larkin\r\n     \r\n      2.  "_s));
    EXPECT_TRUE(text.endsWith(u"\r\n\r\n\r\n"_s));
    EXPECT_FALSE(text.contains(u"xxx"_s));
}

TEST_F(RecordOutput, SaveAllWritesOneDocumentBehindTheOther) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s});
    user.tool(u"tbSaveAll"_s);
    user.cancel();
    EXPECT_EQ(dismissBox(), u"No File Name"_s);
    save(u"tbSave"_s, u"ann.txt"_s);
    user.click(u"cmdNext"_s);
    save(u"tbSave"_s, u"bob.txt"_s);
    save(u"tbSaveAll"_s, u"all"_s);
    const QString between = u"\r\n\r\n"_s;
    EXPECT_EQ(saved(u"all.txt"_s), saved(u"ann.txt"_s) + between + saved(u"bob.txt"_s) + between);
    EXPECT_EQ(status(), u"Record: 1 of 2"_s);
}

TEST_F(RecordOutput, AScreenWithAnOwnerAddsNoEndingToTheName) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID, Description, State) VALUES (1, 'Cabin', 'Vermont')"_s);
    exec(u"INSERT INTO HomeOwned (PersonID, Description) VALUES (1, 'Flat')"_s);
    openFor(u"Whole Family"_s, u"Home"_s);
    ASSERT_EQ(status(), u"Record: 1 of 2"_s);
    user.tool(u"tbSaveAll"_s);
    user.cancel();
    EXPECT_EQ(dismissBox(), u"No File Specified"_s);
    save(u"tbSaveAll"_s, u"homes"_s);
    const QString text = saved(u"homes"_s);
    EXPECT_TRUE(text.contains(u" - Ann Larkin\r\n"_s));
    EXPECT_TRUE(text.contains(u" - Cabin\r\n"_s));
    EXPECT_TRUE(text.contains(u" - Vermont\r\n"_s));
    EXPECT_LT(text.indexOf(u" - Cabin\r\n"_s), text.indexOf(u" - Flat\r\n"_s));
}

TEST_F(RecordOutput, ASaveThatFailsHalfWayLeavesTheOldFileAndTheScreenWhereItStopped) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s});
    exec(u"UPDATE Person SET Comment = '%1' WHERE ID = 2"_s.arg((QString(70, u'x') + u"\r\n"_s).repeated(5'000)));
    user.click(u"cmdNext"_s);
    exec(u"INSERT INTO Attachments (BugNum) VALUES ('%1')"_s.arg(attachKey()));
    user.click(u"cmdFirst"_s);
    const SmallDisk disk;
    const QString all = disk.folder() + u"/all.txt"_s;
    QFile old(all);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("the old one") > 0);
    old.close();
    user.tool(u"tbSaveAll"_s);
    user.choose(all);
    EXPECT_EQ(told(), u"SaveAll Error: 61 - Disk full"_s);
    EXPECT_EQ(status(), u"Record: 2 of 3"_s);
    EXPECT_EQ(user.text(u"txtFields(0)"_s), u"Bob Larkin"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    EXPECT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "the old one");
    EXPECT_EQ(QDir(disk.folder()).entryList(QDir::Files | QDir::Hidden), QStringList(u"all.txt"_s));
}

/// Chooses a file without being seen, and keeps what it is told.
class QuietDialogs : public platform::Dialogs {
public:
    QuietDialogs(QString file, QStringList& told) : file_(std::move(file)), told_(told) {}
    platform::Answer messageBox(const QString& text, platform::Icon /*icon*/, const QString& title,
                                platform::Buttons /*buttons*/) override {
        told_ << title + u": "_s + text;
        return platform::Answer::Ok;
    }
    std::optional<QString> chooseFile(const platform::FileRequest& /*request*/) override { return file_; }

private:
    QString file_;
    QStringList& told_;
};

TEST_F(RecordOutput, ATextThatCanNotBeMadeIsToldApartAndLeavesTheOldFile) {
    write(u"a.txt"_s, "old");
    QStringList told;
    const auto unreadable = []() -> output::PrintableScreen {
        throw platform::RuntimeError(platform::Error::TypeMismatch);
    };
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            platform::Desktop desktop;
            desktop.setDialogs(std::make_unique<QuietDialogs>(path(u"a.txt"_s), told));
            output::saveFile(desktop, path({}), unreadable);
            output::saveAll(
                desktop, {}, [](const auto& visit) { visit(); }, unreadable);
        },
        Qt::BlockingQueuedConnection);
    EXPECT_EQ(told, QStringList(2, u"CreateFileDoc Error: 13 - Type mismatch"_s));
    EXPECT_EQ(saved(u"a.txt"_s), u"old"_s);
}

/// A queue that takes its time, and refuses the job of one number.
class SlowQueue : public platform::PrintDevice {
public:
    [[nodiscard]] platform::PageArea page() override { return {12240, 15840, 11520, 15120}; }
    void send(const platform::PrintJob& /*job*/, const QString& title) override {
        QThread::msleep(60);
        titles << title;
        if (titles.size() == refused)
            throw platform::RuntimeError(platform::Error::NoPrinter, u"The queue is closed for today."_s);
    }
    QStringList titles;
    qsizetype refused = 0;
};

/// While it lives, clicks the button of the window that shows the progress as soon as one is up. Lives where the
/// windows do.
class Impatient : public QObject {
public:
    Impatient() {
        moveToThread(qApp->thread());
        QMetaObject::invokeMethod(
            this, [this] { timer_ = startTimer(1); }, Qt::QueuedConnection);
    }
    QString label;

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (!progress) return;
        killTimer(timer_);
        label = progress->labelText();
        progress->findChild<QPushButton*>()->click();
    }

private:
    int timer_ = 0;
};

TEST_F(RecordOutput, PrintAllCanBeStoppedAndTellsWhatWasPrinted) {
    QStringList names;
    for (int i = 1; i <= 60; ++i)
        names << u"Member %1"_s.arg(i);
    startWith(names);
    SlowQueue queue;
    const platform::PrintDeviceInPlace place(queue);
    // The application's thread takes it down.
    auto* finger = new Impatient;
    user.menu(u"mPrintAll"_s);
    const qsizetype printed = queue.titles.size();
    EXPECT_GT(printed, 1);
    EXPECT_LT(printed, 60);
    EXPECT_TRUE(finger->label.startsWith(u"Printing record "_s)) << finger->label.toStdString();
    EXPECT_EQ(boxText(), u"You stopped after %1 of 60 records.  The records up to there were printed."_s.arg(printed));
    EXPECT_EQ(dismissBox(), u"Print All Stopped"_s);
    EXPECT_EQ(queue.titles[1], u"Birth Information for Whole Family, record 2 of 60"_s);
    EXPECT_EQ(status(), u"Record: 1 of 60"_s);
    finger->deleteLater();
}

TEST_F(RecordOutput, ARefusedJobIsToldInTheWordsOfTheQueue) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO AssetLiquidation (Seq, Asset) VALUES (1, 'Boat')"_s);
    SlowQueue queue;
    queue.refused = 1;
    const platform::PrintDeviceInPlace place(queue);
    user.menu(u"mPrintAll"_s);
    EXPECT_EQ(boxText(), u"The queue is closed for today."_s);
    EXPECT_EQ(boxIcon(), u"information"_s);
    EXPECT_EQ(dismissBox(), u"No Printer"_s);
    EXPECT_EQ(boxTitle(), u""_s);
    EXPECT_EQ(queue.titles.size(), 2);
    queue.refused = 3;
    openNode(u"AssetLiquidation"_s);
    user.tool(u"tbPrint"_s);
    EXPECT_EQ(told(), u"No Printer: The queue is closed for today."_s);
    EXPECT_TRUE(queue.titles[2].contains(u" Listing As Of "_s));
}

TEST_F(RecordOutput, SaveAllThatIsStoppedKeepsTheRecordsUpToThere) {
    QStringList told;
    int visited = 0;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            platform::Desktop desktop;
            desktop.setDialogs(std::make_unique<QuietDialogs>(path(u"all.txt"_s), told));
            const Impatient finger;
            output::saveAll(
                desktop, {.folder = path({}), .count = 60},
                [&](const auto& visit) {
                    bool goesOn = true;
                    while (goesOn && visited < 60) {
                        QThread::msleep(60);
                        ++visited;
                        goesOn = visit();
                    }
                },
                [] { return output::PrintableScreen{.caption = u"Homes"_s}; });
        },
        Qt::BlockingQueuedConnection);
    EXPECT_LT(visited, 60);
    EXPECT_EQ(told, QStringList(u"Save All Stopped: You stopped after %1 of 60 records.  The records up to there were "
                                "saved."_s.arg(visited)));
    EXPECT_EQ(saved(u"all.txt"_s).count(u"     The Homes\r\n"_s), visited);
}

TEST_F(RecordOutput, AListWithoutRowsSaysSoInsteadOfPrinting) {
    startWith({u"Ann Larkin"_s});
    user.setPrinter(path(u"list.pdf"_s));
    openNode(u"AssetLiquidation"_s);
    user.tool(u"tbPrint"_s);
    EXPECT_EQ(told(), u"No Entries: There are no entries to print."_s);
    EXPECT_TRUE(user.jobs().isEmpty());
}

TEST_F(RecordOutput, AListIsDrawnCellByCellWhereOneStringWouldNotKeepItsColumns) {
    startWith({u"Ann Larkin"_s});
    exec(
        u"INSERT INTO AssetLiquidation (Seq, Asset, Directions) VALUES (1, '\u05D1\u05D9\u05EA', '\u05D3\u05D5\u05D3 "
        "\u05E8\u05DF'), (2, 'Boat', 'Sell it')"_s);
    user.setPrinter(path(u"list.pdf"_s));
    openNode(u"AssetLiquidation"_s);
    user.tool(u"tbPrint"_s);
    const QJsonArray page = user.jobs()[0][0].toArray();
    QMap<QString, double> columns;
    for (const QJsonValue& line : page)
        columns[line["text"_L1].toString().trimmed()] = line["x"_L1].toDouble();
    QString plain;
    for (const QString& text : columns.keys()) {
        if (text.contains(u"Boat"_s)) plain = text;
    }
    ASSERT_TRUE(plain.contains(u"Sell it"_s));
    EXPECT_EQ(columns[plain], 0);
    EXPECT_EQ(columns[u"1"_s], 10 * 120);
    EXPECT_EQ(columns[u"\u05D1\u05D9\u05EA"_s], (10 + plain.indexOf(u"Boat"_s)) * 120);
    EXPECT_EQ(columns[u"\u05D3\u05D5\u05D3 \u05E8\u05DF"_s], (10 + plain.indexOf(u"Sell it"_s)) * 120);
}

TEST_F(RecordOutput, ThePlatformsSaveDialogAsksBeforeItReplacesAFile) {
    startWith({u"Ann Larkin"_s});
    write(u"kept.txt"_s, "kept");
    user.tool(u"tbSave"_s);
    user.compose(u"kept"_s);
    for (const QString& answer : {u"No"_s, u"Yes"_s}) {
        user.key(u"Return"_s);
        EXPECT_TRUE(boxText().contains(u"kept.txt already exists"_s)) << boxText().toStdString();
        user.answer(answer);
        EXPECT_EQ(saved(u"kept.txt"_s).startsWith(u"     The "_s), answer == "Yes"_L1);
    }
    EXPECT_EQ(boxTitle(), u""_s);
}

TEST_F(RecordOutput, TellsWhyAFileCanNotBeWritten) {
    startWith({u"Ann Larkin"_s});
    QDir(path({})).mkdir(u"folder"_s);
    write(u"locked.txt"_s, "kept");
    QFile::setPermissions(path(u"locked.txt"_s), QFile::ReadOwner);
    struct {
        QString file, report;
    } const table[] = {{u"missing/a.txt"_s, u"76 - Path not found"_s},
                       {u"folder"_s, u"70 - Permission denied"_s},
                       {u"locked.txt"_s, u"70 - Permission denied"_s}};
    for (const auto& row : table) {
        save(u"tbSave"_s, row.file);
        EXPECT_EQ(boxText(), row.report);
        EXPECT_EQ(dismissBox(), u"SaveFile Error"_s);
        save(u"tbSaveAll"_s, row.file);
        EXPECT_EQ(boxText(), row.report);
        EXPECT_EQ(dismissBox(), u"SaveAll Error"_s);
    }
    EXPECT_EQ(saved(u"locked.txt"_s), u"kept"_s);
}

TEST_F(RecordOutput, TextFilesHoldEveryWritingInUtf8WithoutAMark) {
    const QString name = u"\u0141ar\u043A \u0E81\U0001F3E1 \u05D0"_s;
    startWith({name});
    write(u"a.txt"_s, "old");
    QFile::setPermissions(path(u"a.txt"_s), QFile::ReadOwner | QFile::WriteOwner);
    save(u"tbSave"_s, u"a.txt"_s);
    EXPECT_TRUE(saved(u"a.txt"_s).startsWith(u"     The "_s));
    EXPECT_TRUE(saved(u"a.txt"_s).contains(u" - "_s + name + u"\r\n     \r\n"_s));
    EXPECT_EQ(QFile::permissions(path(u"a.txt"_s)) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    save(u"tbSaveAll"_s, u"all.txt"_s);
    EXPECT_EQ(saved(u"all.txt"_s), saved(u"a.txt"_s) + u"\r\n\r\n"_s);
}

TEST_F(RecordOutput, TheCoverPageIsCentredAndHasTheCompanyAtItsFoot) {
    write(u"SplashDef.txt"_s,
          "CompanyName=Larkmoor\r\nProductName=Kinbook\r\nCompany=Larkmoor Ltd\r\nAddress=1 Hill\r\nCity=Barre\r\n"
          "State=VT\r\nZip=05641\r\nPhone=555\r\nValue=\r\nSplash=1\r\n");
    exec(
        u"INSERT INTO CoverPage (Heading1, SubHeading1, Heading2, SubHeading2, Date) VALUES "
        "('Our Records', 'Kept well', 'Second', 'Sub', 'May 2026')"_s);
    startWith({u"Ann Larkin"_s});
    user.menu(u"mCoverPage"_s);
    user.tool(u"tbPrint"_s);
    EXPECT_EQ(dismissBox(), u"No Printer"_s);
    user.setPrinter(path(u"cover.pdf"_s));
    user.tool(u"tbPrint"_s);
    const QJsonArray jobs = user.jobs();
    ASSERT_EQ(jobs.size(), 1);
    ASSERT_EQ(jobs[0].toArray().size(), 1);
    QStringList texts;
    const QJsonArray page = jobs[0][0].toArray();
    for (const QJsonValue& line : page) {
        const QString text = line["text"_L1].toString();
        if (text.isEmpty()) continue;
        const double size = line["size"_L1].toDouble();
        EXPECT_DOUBLE_EQ(line["x"_L1].toDouble(), 11520 / 2.0 - static_cast<double>(text.size()) * size * 6);
        if (text == u"Our Records"_s) {
            EXPECT_EQ(line["y"_L1].toDouble(), 1440);
        }
        if (text == u"Larkmoor Ltd"_s) {
            EXPECT_EQ(line["y"_L1].toDouble(), 13400);
        }
        EXPECT_EQ(line["italic"_L1].toBool(), size == 10);
        texts << u"%1 %2"_s.arg(size).arg(text);
    }
    EXPECT_EQ(texts, (QStringList{u"18 Our Records"_s, u"14 Kept well"_s, u"12 May 2026"_s, u"14 Second"_s, u"12 Sub"_s,
                                  u"10 Larkmoor Ltd"_s, u"10 1 Hill"_s, u"10 Barre, VT 05641"_s, u"10 555"_s}));
}

}  // namespace
