#include "platform/base/registered_program.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include "tests/platform/error_number.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

/// A desktop of its own, "Hearth", for the whole run: its places are read once. One script stands for all its programs
/// and writes down which of them it was, and the file that it got.
class Hearth {
public:
    Hearth() {
        const QString kinds =
            QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"mime"_s, QStandardPaths::LocateDirectory);
        QFile::link(kinds, at(u"mime"_s));
        for (const char* variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            qputenv(variable, folder_.path().toUtf8());
        qputenv("XDG_CURRENT_DESKTOP", "Hearth");
        QDir(folder_.path()).mkpath(u"applications"_s);
        write(u"show.sh"_s, "#!/bin/sh\nprintf '%s %s' \"$1\" \"$3\" > \"$2.part\" && mv \"$2.part\" \"$2\"\n");
        QFile::setPermissions(at(u"show.sh"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        for (const char* program : {"usual", "hearths", "unwanted", "second", "zip"})
            install(program, at(u"show.sh"_s).toUtf8());
        install("gone", "/nowhere/gone.sh");
        associate();
    }

    [[nodiscard]] QString at(const QString& name) const { return folder_.filePath(name); }

    QString write(const QString& name, const QByteArray& text) const {
        QFile file(at(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) throw std::runtime_error("no file");
        return at(name);
    }

    /// What the programs saw last.
    [[nodiscard]] QString seen() const {
        QElapsedTimer timer;
        timer.start();
        while (!QFile::exists(at(u"seen"_s)) && timer.elapsed() < 20000)
            QThread::msleep(10);
        QFile file(at(u"seen"_s));
        const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        file.remove();
        return text;
    }

private:
    void install(const QByteArray& program, const QByteArray& command) const {
        write(u"applications/"_s + QString::fromUtf8(program) + u".desktop"_s,
              "[Desktop Entry]\nType=Application\nName=" + program + "\nExec=" + command + ' ' + program + ' ' +
                  at(u"seen"_s).toUtf8() + " %f\n");
    }

    void associate() const {
        write(u"hearth-mimeapps.list"_s, "[Default Applications]\ntext/plain=hearths.desktop\n");
        write(u"mimeapps.list"_s,
              "[Default Applications]\ntext/plain=usual.desktop\ntext/csv=gone.desktop\n"
              "[Removed Associations]\ntext/html=unwanted.desktop\n");
        write(u"applications/mimeinfo.cache"_s,
              "[MIME Cache]\ntext/csv=second.desktop;\ntext/html=unwanted.desktop;second.desktop;\n"
              "application/zip=zip.desktop;\nimage/x-tga=gone.desktop;\n"
              "application/vnd.openxmlformats-officedocument.wordprocessingml.document=usual.desktop;\n");
    }

    QTemporaryDir folder_;
};

const Hearth& hearth() {
    static const Hearth desktop;
    return desktop;
}

int errorOf(const QString& path, const QString& name) {
    return test::errorNumber([&] { return openWithRegisteredProgram(path, name), 0; });
}

TEST(RegisteredProgram, IsTheOneOfTheDesktopInUseForTheKindOfFile) {
    const struct {
        const char* what;
        QString stored;
        QString name;
        QByteArray begins;
        QString program;
    } cases[] = {
        {"the desktop's own default goes before the user's", u"0.txt"_s, u"0.txt"_s, "words", u"hearths"_s},
        {"names stay as they are", u"a scan & 'größe' 100%f.txt"_s, u"a.txt"_s, "words", u"hearths"_s},
        {"a default whose program is gone", u"0.csv"_s, u"0.csv"_s, "a,b\n", u"second"_s},
        {"an association that the user removed", u"0.htm"_s, u"0.htm"_s, "<html>", u"second"_s},
        {"a more special kind", u"0.log"_s, u"0.log"_s, "words", u"hearths"_s},
        {"a stored name without its dot", u"Hom_3_17_0docx"_s, u"deed.docx"_s, "PK\3\4", u"usual"_s},
        {"a name that doesn't tell", u"Hom_3_17_0scan"_s, u"scan"_s, "PK\3\4", u"zip"_s},
    };
    for (const auto& [what, stored, name, begins, program] : cases) {
        const QString path = hearth().write(stored, begins);
        EXPECT_EQ(errorOf(path, name), 0) << what;
        EXPECT_EQ(hearth().seen(), program + u' ' + path) << what;
    }
}

TEST(RegisteredProgram, IsMissedWhereNoneFits) {
    EXPECT_EQ(errorOf(hearth().at(u"missing.txt"_s), u"missing.txt"_s), 53);
    EXPECT_EQ(errorOf(hearth().write(u"0.ogg"_s, "OggS"), u"0.ogg"_s), 1155) << "nothing for the kind";
    EXPECT_EQ(errorOf(hearth().write(u"0.tga"_s, "words"), u"0.tga"_s), 1155) << "a program that is gone";
}

}  // namespace
}  // namespace platform
