#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace support {

/// A folder of a test's own, with what lies in it. A name may be a whole path as well.
class TestFolder {
public:
    [[nodiscard]] QString path(const QString& name = {}) const { return QDir(folder_.path()).filePath(name); }

    /// Makes a file, and the folders above it; gives its path.
    QString write(const QString& name, const QByteArray& bytes = "x") const {
        QFile file(path(name));
        QDir().mkpath(QFileInfo(file).absolutePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << qPrintable(name);
        return file.fileName();
    }
    [[nodiscard]] QByteArray bytesOf(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }
    /// All that lies in a folder, by name.
    [[nodiscard]] QStringList namesIn(const QString& name = {}) const {
        return QDir(path(name)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    void makeFolder(const QString& name) const { QDir().mkpath(path(name)); }

private:
    QTemporaryDir folder_;
};

}  // namespace support
