#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/template.h"

/// An application folder with an empty database, and files to attach beside it.
class ApplicationFolder {
public:
    ApplicationFolder() {
        QDir(folder_.path()).mkpath(QStringLiteral("app"));
        QDir(folder_.path()).mkpath(QStringLiteral("source"));
        data::createTemplate(database());
    }

    [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("app")); }
    [[nodiscard]] QString database() const { return folder_.filePath(QStringLiteral("app/FamilyInfo.mdb")); }
    [[nodiscard]] QString stored(const QString& name) const { return path() + QStringLiteral("/Attachments/") + name; }
    [[nodiscard]] QStringList storedNames() const {
        return QDir(stored({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// Makes a file to attach and gives its full name.
    [[nodiscard]] QString source(const QString& name, const QByteArray& content = "content") const {
        const QString path = folder_.filePath(QStringLiteral("source/")) + name;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            throw std::runtime_error("source");
        return path;
    }

    [[nodiscard]] static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

private:
    QTemporaryDir folder_;
};
