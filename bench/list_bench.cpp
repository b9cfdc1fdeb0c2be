// Lists: opening, scrolling, numbering and putting out long ones, against raw SQLite; and what a list of passwords
// costs to open and close.

#include <sys/syscall.h>
#include <unistd.h>

#include <QAction>
#include <QScrollBar>
#include <QTableView>

#include "bench/running.h"
#include "platform/forms/command_button.h"

using namespace bench;

namespace {
long syncs = 0;
}

// Takes the place of the C library's, for SQLite as well: every wait for the disk is counted.
extern "C" int fsync(int file) {
    ++syncs;
    return static_cast<int>(::syscall(SYS_fsync, file));
}
extern "C" int fdatasync(int file) {
    ++syncs;
    return static_cast<int>(::syscall(SYS_fdatasync, file));
}

namespace {

constexpr int manyRows = 100'000;
constexpr int numberedRows = 10'000;
constexpr int fewRows = 1'000;
constexpr int scrolls = 300;

/// Says Yes to every question, and names one file.
class Willing : public platform::Dialogs {
public:
    explicit Willing(QString name) : name_(std::move(name)) {}
    platform::Answer messageBox(const QString& text, platform::Icon icon, const QString& title,
                                platform::Buttons buttons) override {
        if (buttons != platform::Buttons::Ok) return platform::Answer::Yes;
        std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(text));
        std::exit(icon == platform::Icon::None ? 1 : 2);
    }
    std::optional<QString> chooseFile(const platform::FileRequest&) override { return name_; }

private:
    QString name_;
};

/// The program over a list of so many assets.
struct Assets : Running {
    explicit Assets(int rows) : Running(1, 1) {
        desktop.setDialogs(std::make_unique<Willing>(folder.filePath(u"list.txt"_s)));
        raw->exec("PRAGMA synchronous = EXTRA");
        SQLite::Transaction all(*raw);
        SQLite::Statement insert(*raw, "INSERT INTO AssetLiquidation (Seq, Asset, Directions) VALUES (?, ?, ?)");
        for (int i = 1; i <= rows; ++i) {
            insert.bind(1, i);
            insert.bind(2, "Asset number " + std::to_string(i));
            insert.bind(3, "Ask three dealers for an offer, and sell it to the best of them " + std::to_string(i));
            insert.exec();
            insert.reset();
        }
        all.commit();
    }
    QTemporaryDir folder;
};

void openAndScroll() {
    Assets program(manyRows);
    const double opening = best([&] { program.close(program.open(u"frmAssetLiquidation"_s)); });
    const double listing = best([&] {
        SQLite::Statement list(*program.raw, "SELECT ID FROM AssetLiquidation ORDER BY Seq");
        while (list.executeStep())
            list.getColumn(0).getInt64();
        SQLite::Statement row(*program.raw, "SELECT * FROM AssetLiquidation WHERE ID = 1");
        row.executeStep();
    });
    report("opening a list of 100,000 rows", "ms", opening, listing, 2);

    session::DataWindow& window = program.open(u"frmAssetLiquidation"_s);
    QScrollBar* bar = window.findChild<QTableView*>()->verticalScrollBar();
    double slowest = 0;
    for (int i = 1; i <= scrolls; ++i) {
        slowest = std::max(slowest, milliseconds([&] {
                               bar->setValue(static_cast<int>(qint64{bar->maximum()} * (i * 7919 % scrolls) / scrolls));
                               QApplication::processEvents();
                           }));
    }
    std::printf("%-42s %.2f ms (limit 16)\n", "the slowest scroll to anywhere", slowest);
    withinLimits() = withinLimits() && slowest < 16;
}

void openTheLog() {
    Running program(1, 1);
    SQLite::Transaction all(*program.raw);
    program.raw->exec("INSERT INTO Doctors (Name) VALUES ('Dr. Hale'), ('Dr. Brook'), ('Dr. Finch')");
    SQLite::Statement insert(*program.raw,
                             "INSERT INTO MedicalLog (PersonID, MedicalID, Description) VALUES (1, ?, ?)");
    for (int i = 1; i <= manyRows; ++i) {
        insert.bind(1, i % 3 + 1);
        insert.bind(2, "Came with a cough, left with a smile, number " + std::to_string(i));
        insert.exec();
        insert.reset();
    }
    all.commit();
    program.session.gbWholeFamily = true;
    const double opening = best([&] { program.close(program.open(u"frmMedicalLog"_s)); });
    const double listing = best([&] {
        SQLite::Statement list(*program.raw,
                               "SELECT MedicalLog.ID FROM Doctors RIGHT JOIN (Person RIGHT JOIN MedicalLog "
                               "ON Person.ID = MedicalLog.PersonID) ON Doctors.ID = MedicalLog.MedicalID");
        while (list.executeStep())
            list.getColumn(0).getInt64();
    });
    report("opening a medical log of 100,000 rows", "ms", opening, listing, 2);
}

void press(session::DataWindow& window, const QString& button) {
    dynamic_cast<platform::CommandButton*>(window.control(button))->press();
}

void numberAnew() {
    Assets program(numberedRows);
    session::DataWindow& window = program.open(u"frmAssetLiquidation"_s);
    syncs = 0;
    const double ours = milliseconds([&] { press(window, u"cmdDelete"_s); });
    const long oursSyncs = syncs;
    syncs = 0;
    const double theirs = milliseconds([&] {
        for (int i = 2; i <= numberedRows; ++i)
            program.raw->exec("Update AssetLiquidation Set Seq=" + std::to_string(i) +
                              " Where ID=" + std::to_string(i));
    });
    report("numbering 9,999 rows anew", "ms", ours, theirs, 3);
    std::printf("%-42s ours %ld, raw %ld\n", "  syncs of the disk", oursSyncs, syncs);

    program.raw->exec("UPDATE AssetLiquidation SET Seq = ID - 1");
    syncs = 0;
    program.raw->exec("UPDATE AssetLiquidation SET Asset = 'other' WHERE ID = 2");
    std::printf("%-42s %ld\n", "  syncs of one statement", syncs);
}

void putOut() {
    double times[2];
    int at = 0;
    for (const int rows : {fewRows, numberedRows}) {
        Assets program(rows);
        session::DataWindow& window = program.open(u"frmAssetLiquidation"_s);
        auto* save = window.findChild<QAction*>(u"mSave"_s);
        times[at++] = best([&] { save->trigger(); });
    }
    report("saving a list of 10,000, against 1,000", "ms", times[1], times[0], 11);
}

void openPins() {
    Running program(1, 1);
    program.raw->exec("PRAGMA synchronous = EXTRA");
    SQLite::Transaction all(*program.raw);
    for (int i = 1; i <= fewRows; ++i) {
        program.raw->exec("INSERT INTO PIN_Password (Seq, Account, PIN_Password, PersonID, Encrypted) VALUES (" +
                          std::to_string(i) + ", 'Account', 'secret', 1, 'PT')");
    }
    all.commit();
    program.session.gPersonID = 1;
    program.session.gbWholeFamily = false;
    program.close(program.open(u"frmPinsAndPasswords"_s));
    session::DataWindow* window = nullptr;
    syncs = 0;
    const double opening = milliseconds([&] { window = &program.open(u"frmPinsAndPasswords"_s); });
    const double closing = milliseconds([&] { program.close(*window); });
    const long oursSyncs = syncs;
    syncs = 0;
    const double theirs = milliseconds([&] {
        for (int i = 1; i <= fewRows; ++i) {
            program.raw->exec("Update PIN_Password Set PIN_Password = 'other', Encrypted = 'x' Where ID = " +
                              std::to_string(i));
        }
    });
    std::printf("1,000 PINs: opening %.0f ms, closing %.0f ms, %ld syncs; 1,000 raw updates %.0f ms, %ld syncs\n",
                opening, closing, oursSyncs, theirs, syncs);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    openAndScroll();
    openTheLog();
    putOut();
    openPins();
    numberAnew();
    return withinLimits() ? 0 : 1;
}
