#include "platform/base/registered_program.h"

#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <optional>

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int noAssociation = 1155;

/// Values of a key within a group of a desktop file, "[Group]" above "Key=Value" lines; empty if it isn't there.
QString valueIn(const QString& path, const QString& group, const QString& key) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    bool inside = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            inside = line == u"[%1]"_s.arg(group);
        } else if (inside && line.section(u'=', 0, 0).trimmed() == key) {
            return line.section(u'=', 1).trimmed();
        }
    }
    return {};
}

/// The command of a program's desktop file; nullopt for one that is missing, hidden, or made for a terminal.
std::optional<QString> commandOf(const QString& desktopFile) {
    const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, desktopFile);
    const QString group = u"Desktop Entry"_s;
    const QString command = valueIn(path, group, u"Exec"_s);
    if (command.isEmpty() || valueIn(path, group, u"Hidden"_s) == u"true"_s) return std::nullopt;
    if (valueIn(path, group, u"Terminal"_s) == u"true"_s) return std::nullopt;
    return command;
}

/// Desktop files that a list names for a kind of file, in the list's order.
QStringList namedIn(const QStringList& lists, const QString& group, const QString& kind) {
    QStringList named;
    for (const QString& list : lists)
        named += valueIn(list, group, kind).split(u';', Qt::SkipEmptyParts);
    return named;
}

/// Desktop files of the programs for a kind of file: what the user chose, what he added, what is installed.
QStringList programsFor(const QString& kind) {
    const QString chosen = u"mimeapps.list"_s;
    const QStringList lists = QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, chosen) +
                              QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, chosen);
    const QStringList caches = QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, u"mimeinfo.cache"_s);
    return namedIn(lists, u"Default Applications"_s, kind) + namedIn(lists, u"Added Associations"_s, kind) +
           namedIn(caches, u"MIME Cache"_s, kind);
}

std::optional<QString> commandFor(const QString& path) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    const QStringList kinds = QStringList(type.name()) + type.allAncestors();
    for (const QString& kind : kinds) {
        const QStringList programs = programsFor(kind);
        for (const QString& program : programs) {
            if (auto command = commandOf(program)) return command;
        }
    }
    return std::nullopt;
}

/// The words of a command with the file in the place of its field code. A command without one gets the file behind it.
QStringList wordsFor(const QString& command, const QString& path) {
    QStringList words;
    bool given = false;
    for (QString word : QProcess::splitCommand(command)) {
        const bool asFile = word.contains(u"%f"_s, Qt::CaseInsensitive);
        const bool asUrl = word.contains(u"%u"_s, Qt::CaseInsensitive);
        if (word == u"%i"_s || word == u"%c"_s || word == u"%k"_s) continue;
        if (asFile) word.replace(u"%f"_s, path, Qt::CaseInsensitive);
        if (asUrl) word.replace(u"%u"_s, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), Qt::CaseInsensitive);
        if (!asFile && !asUrl) word.replace(u"%%"_s, u"%"_s);
        given = given || asFile || asUrl;
        words.append(word);
    }
    if (!given) words.append(path);
    return words;
}

}  // namespace

void openWithRegisteredProgram(const QString& path) {
    if (!files::fileExists(path)) throw RuntimeError(53);
    QStringList words;
    if (const auto command = commandFor(path)) words = wordsFor(*command, path);
    const QString program = words.isEmpty() ? QString() : words.takeFirst();
    if (program.isEmpty() || !QProcess::startDetached(program, words)) {
        throw RuntimeError(noAssociation,
                           u"No application is associated with the specified file for this operation."_s);
    }
}

}  // namespace platform
