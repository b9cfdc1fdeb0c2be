#pragma once

#include <QFile>
#include <QTemporaryDir>

/// A disk with little room: a mounted one where the test may mount, otherwise a limit on how far files grow.
class SmallDisk {
public:
    explicit SmallDisk(int kilobytes = 256);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] QString folder() const { return folder_.path(); }
    /// Leaves no room for another page.
    void fill();
    void makeRoom();
    /// It is a disk of its own.
    [[nodiscard]] bool isMounted() const { return isMounted_; }

private:
    QTemporaryDir folder_;
    bool isMounted_ = false;
};

/// While it lives, the test runs without the administrator's powers and may not write the file, or not its folder.
class OrdinaryUser {
public:
    OrdinaryUser(const QString& folder, const QString& file, bool folderOnly);
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    QString folder_;
    bool wasRoot_;
};
