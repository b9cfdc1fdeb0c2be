#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>

class QProgressDialog;

namespace platform {

/// Shows how far a long run through records has come, and lets the user stop it between two of them. Nothing is seen of
/// a run that takes less than about a second. Windows get no clicks and keys meanwhile.
class Progress {
public:
    /// `what` tells what is done: "Printing record %1 of %2".
    Progress(const QString& title, QString what, int total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more record is done. False when the user wants no further one.
    [[nodiscard]] bool step();
    /// Records that are done.
    [[nodiscard]] int done() const { return done_; }
    [[nodiscard]] int total() const { return total_; }
    /// The user stopped the run before its end.
    [[nodiscard]] bool isStopped() const { return stopped_; }

private:
    void show();

    QString what_;
    int total_;
    int done_ = 0;
    bool stopped_ = false;
    QElapsedTimer sinceShown_;
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace platform
