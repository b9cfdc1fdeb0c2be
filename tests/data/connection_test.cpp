#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <cerrno>

#include "family_file.h"
#include "hostile_disk.h"

using data::Connection;
using data::Opening;
using data::Recordset;

namespace {

/// While set, no folder can be flushed to the disk; files can.
bool foldersRefuseFlush = false;

int flushUnlessFolder(const char* name, int descriptor) {
    struct stat status {};
    if (foldersRefuseFlush && fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        errno = EIO;
        return -1;
    }
    return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, name))(descriptor);
}

}  // namespace

// In the place of the system's, for the engine as well.
extern "C" int fsync(int descriptor) {
    return flushUnlessFolder("fsync", descriptor);
}
extern "C" int fdatasync(int descriptor) {
    return flushUnlessFolder("fdatasync", descriptor);
}

namespace {

class Files : public FamilyFile {
protected:
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    [[nodiscard]] QByteArray wholeFile() const {
        QFile file(path_);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static QString refusal(const QString& path) {
        Connection connection;
        QString words;
        EXPECT_EQ(errorOf([&] { connection.open(path); }, &words), -2147467259) << path.toStdString();
        EXPECT_FALSE(connection.isOpen());
        return words;
    }
};

TEST_F(Files, ThatAreNoDatabaseAreRefused) {
    sql("CREATE TABLE Filler (x); INSERT INTO Filler VALUES (randomblob(20000))");
    const QByteArray whole = wholeFile();
    QByteArray damagedHead = whole;
    damagedHead.replace(0, 100, QByteArray(100, 'x'));
    const QString broken[] = {
        write(u"empty.mdb"_s, {}),
        write(u"garbage.mdb"_s, QByteArray(5000, '\x7f')),
        write(u"short.mdb"_s, "SQLite format 3"),
        write(u"half.mdb"_s, whole.left(whole.size() / 2)),
        write(u"firstpage.mdb"_s, whole.left(4096)),
        write(u"cutlast.mdb"_s, whole.chopped(1)),
        write(u"head.mdb"_s, damagedHead),
    };
    for (const auto& path : broken)
        EXPECT_EQ(refusal(path), u"Unrecognized database format '%1'."_s.arg(path));
    EXPECT_EQ(QFile(broken[0]).size(), 0) << "an empty file isn't made into a database";
}

TEST_F(Files, ThatAreMissingAreNotMade) {
    const QString missing = folder_.filePath(u"missing.mdb"_s);
    EXPECT_EQ(refusal(missing), u"Could not find file '%1'."_s.arg(missing));
    EXPECT_FALSE(QFile::exists(missing));
    EXPECT_EQ(refusal(folder_.path()), u"Could not find file '%1'."_s.arg(folder_.path()));
    EXPECT_TRUE(refusal(folder_.filePath(u"nowhere/a.mdb"_s)).contains(u"is not a valid path."_s));
}

TEST_F(Files, OpenAgainOnlyAfterClosing) {
    EXPECT_EQ(errorOf([&] { connection_.open(path_); }), 3705);
    connection_.close();
    EXPECT_FALSE(connection_.isOpen());
    connection_.open(path_);
    EXPECT_EQ(connection_.path(), path_);
}

TEST_F(Files, LockedByAnotherProgramAreNamed) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    rows.setValue(u"Seq"_s, 5);
    SQLite::Database other(path_.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    QString words;
    EXPECT_EQ(errorOf([&] { rows.update(); }, &words), -2147467259);
    EXPECT_EQ(words, u"Could not use '%1'; file already in use."_s.arg(path_));
    EXPECT_EQ(refusal(path_), words);
    other.exec("ROLLBACK");
    rows.update();
    EXPECT_EQ(stored("SELECT Seq FROM Person"), u"5"_s);
}

class ReadOnly : public Files, public testing::WithParamInterface<bool> {};

TEST_P(ReadOnly, OpensAndRefusesEachWrite) {
    connection_.close();
    const OrdinaryUser user(folder_.path(), path_, GetParam());
    connection_.open(path_);
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    EXPECT_EQ(rows.recordCount(), 3);
    const std::function<void()> writes[] = {
        [&] { rows.deleteCurrent(); },
        [&] { rows.setValue(u"Seq"_s, 9), rows.update(); },
        [&] { Recordset().open(u"Delete from Person"_s, connection_); },
    };
    for (const auto& write : writes) {
        QString words;
        EXPECT_EQ(errorOf(write, &words), -2147467259);
        EXPECT_EQ(words, u"Operation must use an updateable query."_s);
    }
    connection_.close();
}

INSTANTIATE_TEST_SUITE_P(FileOrFolder, ReadOnly, testing::Bool());

TEST(FullDisk, KeepsTheFileWholeAndThePendingRow) {
    SmallDisk disk;
    const QString path = disk.folder() + u"/family.mdb"_s;
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec(
            "CREATE TABLE Person (ID INTEGER PRIMARY KEY AUTOINCREMENT, Comment LONGTEXT);"
            "INSERT INTO Person(Comment) VALUES ('old')");
    Connection connection;
    connection.open(path);
    Recordset rows(Opening::Screen);
    rows.open(u"Select * from Person"_s, connection);
    rows.setValue(u"Comment"_s, QString(60000, u'x'));
    disk.fill();
    QString words;
    EXPECT_EQ(errorOf([&] { rows.update(); }, &words), -2147467259);
    EXPECT_EQ(words, u"There is not enough space on the disk."_s);
    EXPECT_EQ(rows.editMode(), data::EditMode::InProgress);
    Connection again;
    again.open(path);
    Recordset seen;
    seen.open(u"Select * from Person"_s, again);
    EXPECT_EQ(seen.value(u"Comment"_s), u"old"_s);
    seen.close();
    disk.makeRoom();
    rows.update();
    seen.open(u"Select * from Person"_s, again);
    EXPECT_EQ(seen.value(u"Comment"_s).toString().size(), 60000);
}

TEST_F(Files, AChangeThatIsInTheFileIsNoFailureThoughItsFolderCannotBeFlushed) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    foldersRefuseFlush = true;
    rows.addNew();
    rows.setValue(u"Seq"_s, 9);
    EXPECT_EQ(errorOf([&] { rows.update(); }), 0);
    foldersRefuseFlush = false;
    EXPECT_EQ(rows.editMode(), data::EditMode::None);
    Recordset seen(Opening::Screen);
    open(seen, "Select * from Person where Seq = 9");
    EXPECT_EQ(seen.recordCount(), 1);
}

/// The number of the last row that the killed program had reported as saved.
int runAndKill(const QString& path, int milliseconds) {
    QProcess program;
    program.start(QStringLiteral(SAVE_LOOP), {path});
    EXPECT_TRUE(program.waitForReadyRead());
    program.waitForFinished(milliseconds);
    program.kill();
    program.waitForFinished();
    const auto lines = program.readAllStandardOutput().split('\n');
    return lines.size() < 2 ? 0 : lines[lines.size() - 2].toInt();
}

TEST(Killed, ProgramLosesNoSaveThatItReported) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"family.mdb"_s);
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec(
            "CREATE TABLE Log (ID INTEGER PRIMARY KEY AUTOINCREMENT, Number INTEGER, Twin INTEGER, Comment LONGTEXT)");
    int interrupted = 0;
    for (int round = 0; round < 104; ++round) {
        const int reported = runAndKill(path, 1 + (round * 7) % 23);
        ASSERT_GT(reported, 0);
        interrupted += QFile::exists(path + u"-journal"_s) ? 1 : 0;
        Connection connection;
        connection.open(path);
        Recordset rows;
        rows.open(u"Select Max(Number) as n, Count(*) as c from Log"_s, connection);
        ASSERT_GE(rows.value(u"n"_s).toInt(), reported);
        ASSERT_LE(rows.value(u"n"_s).toInt(), reported + 1) << "one save may have ended unreported";
        rows.release();
        rows.open(u"Select Count(*) as c from Log where Number <> Twin or length(Comment) <> Number % 9 * 3000"_s,
                  connection);
        ASSERT_EQ(rows.value(u"c"_s), 0) << "half a row";
    }
    EXPECT_GT(interrupted, 0) << "no kill ever met a save that was under way";
}

}  // namespace
