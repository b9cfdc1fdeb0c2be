#include "platform/base/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

#include "tests/data/hostile_disk.h"
#include "tests/platform/error_number.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;

namespace platform::files {
namespace {

/// Number of the error that an action without a result ends in.
template <typename Action>
int errorOf(Action action) {
    return test::errorNumber([&] { return action(), 0; });
}

/// An ordinary user for as long as it lives, also where the tests run with all rights.
class OrdinaryUser {
public:
    OrdinaryUser() { EXPECT_TRUE(::geteuid() != 0 || ::seteuid(65534) == 0); }
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(before_), 0); }

private:
    uid_t before_ = ::geteuid();
};

class Files : public testing::Test, protected support::TestFolder {
protected:
    QString makeReadOnly(const QString& name) const {
        const QString made = write(name, "old");
        setReadOnly(made);
        return made;
    }
};

TEST_F(Files, PathsAreJoinedAndCut) {
    EXPECT_EQ(join(u"a"_s, u"b"_s), u"a/b"_s);
    EXPECT_EQ(join(u"a/"_s, u"b"_s), u"a/b"_s);
    EXPECT_EQ(nameOf(u"a/b.c"_s), u"b.c"_s);
    EXPECT_EQ(nameOf(u"b.c"_s), u"b.c"_s);
    EXPECT_EQ(folderOf(u"a/b/c"_s), u"a/b"_s);
    EXPECT_EQ(folderOf(u"c"_s), u""_s);
}

TEST_F(Files, ExistenceAndSizes) {
    const QString file = write(u"f"_s, "12345");
    write(u"sub/deep/g"_s, "123");
    EXPECT_TRUE(fileExists(file) && !folderExists(file));
    EXPECT_TRUE(folderExists(path(u"sub"_s)) && !fileExists(path(u"sub"_s)));
    EXPECT_FALSE(fileExists(u""_s) || fileExists(path(u"*"_s)) || folderExists(u""_s));
    EXPECT_EQ(fileSize(file), 5);
    EXPECT_EQ(folderSize(path()), 8);
    EXPECT_EQ(errorOf([&] { return fileSize(path(u"none"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { return folderSize(path(u"none"_s)); }), 76);
}

TEST_F(Files, CopyReplacesTheTargetAndTakesAttributesAlong) {
    const QString source = makeReadOnly(u"source"_s);
    const QString target = write(u"target"_s, "a longer content than the new one");
    copyFile(source, target);
    EXPECT_EQ(bytesOf(target), "old");
    EXPECT_TRUE(isReadOnly(target));
    EXPECT_EQ(namesIn(), QStringList({u"source"_s, u"target"_s}));
}

TEST_F(Files, CopyThroughALinkKeepsTheLink) {
    const QString source = write(u"source"_s, "new");
    write(u"elsewhere/target"_s, "old");
    QFile::link(path(u"elsewhere/target"_s), path(u"link"_s));
    copyFile(source, path(u"link"_s));
    EXPECT_TRUE(QFileInfo(path(u"link"_s)).isSymLink());
    EXPECT_EQ(bytesOf(path(u"elsewhere/target"_s)), "new");
}

TEST_F(Files, CopyRefusals) {
    const QString source = write(u"source"_s);
    const QString locked = makeReadOnly(u"locked"_s);
    write(u"folder/in"_s);
    EXPECT_EQ(errorOf([&] { copyFile(path(u"none"_s), path(u"t"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { copyFile(path(u"folder"_s), path(u"t"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { copyFile(source, path(u"none/t"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { copyFile(source, path(u"folder"_s)); }), 70);
    EXPECT_EQ(errorOf([&] { copyFile(source, locked); }), 70);
    EXPECT_EQ(errorOf([&] { copyFile(source, source); }), 70);
    EXPECT_EQ(errorOf([&] { copyFile(source, path(u"folder/../source"_s)); }), 70);
    EXPECT_EQ(bytesOf(locked), "old");
    EXPECT_EQ(bytesOf(source), "x");
    EXPECT_EQ(namesIn(), QStringList({u"folder"_s, u"locked"_s, u"source"_s}));
}

TEST_F(Files, InterruptedCopyLeavesTheOldFileWhole) {
    const QByteArray content(20 << 20, 'n');
    const QString source = write(u"source"_s, content);
    const QString target = write(u"target"_s, "old");
    const auto stop = [&](const QString& copy) {
        EXPECT_TRUE(bytesOf(copy) == content);
        throw std::runtime_error("stopped");
    };
    EXPECT_THROW(copyFile(source, target, stop), std::runtime_error);
    EXPECT_EQ(bytesOf(target), "old");
    EXPECT_EQ(namesIn(), QStringList({u"source"_s, u"target"_s}));
}

TEST_F(Files, AllFilesOfAFolder) {
    write(u"from/a"_s, "a");
    write(u"from/.hidden"_s, "h");
    write(u"from/sub/b"_s, "b");
    write(u"to/c"_s);
    write(u"empty/sub/d"_s);
    const QString to = path(u"to"_s);
    copyAllFiles(path(u"from"_s), to);
    EXPECT_EQ(namesIn(to), QStringList({u".hidden"_s, u"a"_s, u"c"_s}));
    EXPECT_EQ(errorOf([&] { copyAllFiles(path(u"empty"_s), to); }), 53);
    EXPECT_EQ(errorOf([&] { copyAllFiles(path(u"from"_s), path(u"none"_s)); }), 76);

    setReadOnly(path(u"to/a"_s));
    deleteAllFiles(to);
    EXPECT_EQ(errorOf([&] { deleteAllFiles(to); }), 53);
    EXPECT_EQ(errorOf([&] { deleteAllFiles(path(u"empty"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { deleteAllFiles(path(u"none"_s)); }), 76);
}

TEST_F(Files, CopyOfAllFilesStopsAtTheFirstError) {
    write(u"from/a"_s, "new");
    write(u"from/b"_s, "new");
    write(u"from/c"_s, "new");
    makeReadOnly(u"to/b"_s);
    EXPECT_EQ(errorOf([&] { copyAllFiles(path(u"from"_s), path(u"to"_s)); }), 70);
    EXPECT_EQ(namesIn(path(u"to"_s)), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(Files, ReadOnlyFilesAreDeletedOnlyByForce) {
    const QString file = makeReadOnly(u"f"_s);
    EXPECT_EQ(errorOf([&] { deleteFile(file, false); }), 70);
    EXPECT_TRUE(fileExists(file));
    deleteFile(file, true);
    EXPECT_FALSE(fileExists(file));
    EXPECT_EQ(errorOf([&] { deleteFile(file, true); }), 53);

    setReadOnly(write(u"g"_s), true);
    setReadOnly(path(u"g"_s), false);
    deleteFile(path(u"g"_s), false);
    EXPECT_EQ(errorOf([&] { setReadOnly(path(u"g"_s)); }), 53);
}

TEST_F(Files, FoldersAreMergedAndDeletedWhole) {
    write(u"from/a"_s, "new");
    write(u"from/sub/b"_s, "new");
    write(u"to/a"_s, "old");
    write(u"to/kept"_s, "old");
    const QString from = path(u"from"_s);
    const QString to = path(u"to"_s);
    copyFolder(from, to);
    EXPECT_EQ(bytesOf(path(u"to/a"_s)), "new");
    EXPECT_EQ(bytesOf(path(u"to/sub/b"_s)), "new");
    EXPECT_EQ(bytesOf(path(u"to/kept"_s)), "old");
    EXPECT_EQ(errorOf([&] { copyFolder(path(u"none"_s), to); }), 76);
    EXPECT_EQ(errorOf([&] { copyFolder(from, path(u"none/to"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { copyFolder(from + u'/', to); }), 76);
    setReadOnly(path(u"to/sub/b"_s));
    EXPECT_EQ(errorOf([&] { copyFolder(from, to); }), 70);
    copyFolder(from, join(from, u"sub"_s));
    EXPECT_EQ(namesIn(path(u"from/sub"_s)), QStringList({u"a"_s, u"b"_s, u"sub"_s})) << "into itself comes to an end";

    QFile::link(from, path(u"to/sub/link"_s));
    EXPECT_EQ(errorOf([&] { deleteFolder(to + u'/'); }), 76);
    deleteFolder(to);
    EXPECT_FALSE(folderExists(to));
    EXPECT_TRUE(fileExists(path(u"from/a"_s))) << "a link's folder is not the folder's own";
    EXPECT_EQ(errorOf([&] { deleteFolder(to); }), 76);
}

TEST_F(Files, MissingRightsAreRefused) {
    const QString secret = write(u"secret"_s);
    write(u"closed/f"_s);
    QFile::setPermissions(secret, {});
    QFile::setPermissions(path(u"closed"_s), {});
    ::chmod(QFile::encodeName(path()).constData(), 0755);
    {
        const OrdinaryUser user;
        EXPECT_EQ(errorOf([&] { return readLines(secret); }), 70);
        EXPECT_EQ(errorOf([&] { copyFile(secret, u"/tmp/unwanted"_s); }), 70);
        EXPECT_EQ(errorOf([&] { return folderSize(path()); }), 70);
    }
    QFile::setPermissions(path(u"closed"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(Files, LinesEndAtLineFeedsOnly) {
    struct {
        QByteArray bytes;
        QStringList lines;
    } const cases[] = {
        {"a\r\nb\r\n", {u"a"_s, u"b"_s}},
        {"a\r\nb", {u"a"_s, u"b"_s}},
        {"a\r\n\r\n", {u"a"_s, u""_s}},
        {"a\nb", {u"a"_s, u"b"_s}},
        {"a\rb\r\n", {u"a\rb"_s}},
        {"a\r\r\nb\r", {u"a\r"_s, u"b\r"_s}},
        {"\n", {u""_s}},
        {"", {}},
        {"a\x0B\x0C\x1C\x85\x80\n", {u"a\u000B\u000C\u001C\u2026\u20AC"_s}},
    };
    for (const auto& [bytes, lines] : cases) {
        EXPECT_EQ(readLines(write(u"text"_s, bytes)), lines) << bytes.toPercentEncoding().toStdString();
    }
    EXPECT_EQ(errorOf([&] { return readLines(path(u"none"_s)); }), 53);
}

TEST_F(Files, TextIsWrittenWholeOrNotAtAll) {
    const QString file = path(u"text"_s);
    writeTextFile(file, u"caf\u00E9 \u20AC\r\nb\n"_s);
    EXPECT_EQ(bytesOf(file), "caf\xE9 \x80\r\nb\n");
    EXPECT_FALSE(isReadOnly(file));
    EXPECT_EQ(errorOf([&] { writeTextFile(file, u"\u0416"_s); }), 5);
    EXPECT_EQ(errorOf([&] { writeTextFile(u""_s, u"a"_s); }), 5);
    EXPECT_EQ(errorOf([&] { writeTextFile(path(u"none/text"_s), u"a"_s); }), 76);
    setReadOnly(file);
    EXPECT_EQ(errorOf([&] { writeTextFile(file, u"a"_s); }), 70);
    EXPECT_EQ(bytesOf(file), "caf\xE9 \x80\r\nb\n");
    EXPECT_EQ(namesIn(), QStringList(u"text"_s));
}

TEST_F(Files, FullDiskLeavesTheOldFilesWhole) {
    const QString big = write(u"big"_s, QByteArray(3 << 20, 'n'));
    const QString small = write(u"small"_s, QByteArray(100 << 10, 's'));
    const QByteArray smallBytes = bytesOf(small);
    const SmallDisk disk(512);
    if (!disk.isMounted()) GTEST_SKIP() << "no disk of its own for the test";
    const QString target = join(disk.folder(), u"target"_s);
    copyFile(small, target);
    EXPECT_EQ(errorOf([&] { copyFile(big, target); }), 61);
    EXPECT_EQ(errorOf([&] { writeTextFile(target, QString(3 << 20, u'x')); }), 61);
    EXPECT_EQ(bytesOf(target), smallBytes);
    EXPECT_EQ(namesIn(disk.folder()), QStringList(u"target"_s));
}

}  // namespace
}  // namespace platform::files
