#include "platform/base/registered_program.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "tests/platform/error_number.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

/// A desktop of its own, on which a script stands for the program that shows files.
class RegisteredProgram : public testing::Test {
protected:
    RegisteredProgram() {
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            qputenv(variable, folder_.path().toUtf8());
        QDir(folder_.path()).mkpath(u"applications"_s);
        write(u"viewer.sh"_s, "#!/bin/sh\nprintf '%s' \"$2\" > \"$1.part\" && mv \"$1.part\" \"$1\"\n");
        QFile::setPermissions(at(u"viewer.sh"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString at(const QString& name) const { return folder_.filePath(name); }
    void write(const QString& name, const QByteArray& text) const {
        QFile file(at(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) throw std::runtime_error("no file");
    }
    void registerFor(const char* kind, const QByteArray& more = {}) const {
        write(u"applications/viewer.desktop"_s,
              "[Desktop Entry]\nType=Application\nName=Viewer\nExec=" + at(u"viewer.sh"_s).toUtf8() + ' ' +
                  at(u"seen"_s).toUtf8() + " %f\n" + more);
        write(u"mimeapps.list"_s, QByteArray("[Default Applications]\n") + kind + "=gone.desktop;viewer.desktop;\n");
    }
    /// What the script was given, once it has run.
    [[nodiscard]] QString seen() const {
        QElapsedTimer timer;
        timer.start();
        while (!QFile::exists(at(u"seen"_s)) && timer.elapsed() < 20000)
            QThread::msleep(10);
        QFile file(at(u"seen"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    [[nodiscard]] static int errorOf(const QString& path) {
        return test::errorNumber([&] { return openWithRegisteredProgram(path), 0; });
    }

    QTemporaryDir folder_;
};

TEST_F(RegisteredProgram, GetsTheFileWhateverItsName) {
    registerFor("text/plain");
    const QString name = u"a scan & 'größe' 100%f.txt"_s;
    write(name, "words");
    EXPECT_EQ(errorOf(at(name)), 0);
    EXPECT_EQ(seen(), at(name));
}

TEST_F(RegisteredProgram, ShowsMoreSpecialKindsToo) {
    registerFor("text/plain");
    write(u"table.csv"_s, "a,b\n");
    EXPECT_EQ(errorOf(at(u"table.csv"_s)), 0);
    EXPECT_EQ(seen(), at(u"table.csv"_s));
}

TEST_F(RegisteredProgram, IsMissedWhereNoneFits) {
    write(u"a.txt"_s, "words");
    EXPECT_EQ(errorOf(at(u"gone.txt"_s)), 53);
    registerFor("application/x-kinbook-other");
    EXPECT_EQ(errorOf(at(u"a.txt"_s)), 1155);
    registerFor("text/plain", "Terminal=true\n");
    EXPECT_EQ(errorOf(at(u"a.txt"_s)), 1155);
    registerFor("text/plain");
    QFile::remove(at(u"viewer.sh"_s));
    EXPECT_EQ(errorOf(at(u"a.txt"_s)), 1155);
}

}  // namespace
}  // namespace platform
