// Saving all records of a screen into one file, against reading the same rows and writing the same bytes.

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <QAction>
#include <QFile>

#include "bench/running.h"

using namespace bench;

namespace {

constexpr int fewRecords = 1'000;
constexpr int manyRecords = 10'000;

/// Answers the file dialog with one name.
class OneFile : public platform::Dialogs {
public:
    explicit OneFile(QString name) : name_(std::move(name)) {}
    std::optional<QString> chooseFile(const platform::FileRequest&) override { return name_; }

private:
    QString name_;
};

struct Saved {
    double ours = 0;
    double raw = 0;
};

Saved saveAll(int records) {
    Running program(records, 1);
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"all.txt"_s);
    program.desktop.setDialogs(std::make_unique<OneFile>(name));
    session::DataWindow& window = program.open(u"frmHomesOwned"_s);
    auto* save = window.findChild<QAction*>(u"mSaveAll"_s);
    Saved saved;
    saved.ours = best([&] { save->trigger(); });

    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) std::exit(1);
    const QByteArray bytes = file.readAll();
    std::printf("%d records, %lld bytes\n", records, static_cast<long long>(bytes.size()));
    saved.raw = best([&] {
        SQLite::Statement rows(*program.raw,
                               "SELECT HomeOwned.* FROM Person INNER JOIN HomeOwned ON Person.ID = HomeOwned.PersonID "
                               "ORDER BY Person.Seq, HomeOwned.ID");
        while (rows.executeStep()) {
            for (int column = 0; column < rows.getColumnCount(); ++column)
                rows.getColumn(column).getString();
        }
        QFile copy(folder.filePath(u"raw.txt"_s));
        if (!copy.open(QIODevice::WriteOnly)) std::exit(1);
        for (qsizetype at = 0; at < bytes.size(); at += bytes.size() / records)
            copy.write(bytes.mid(at, bytes.size() / records));
        copy.flush();
        ::fsync(copy.handle());
    });
    return saved;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Saved few = saveAll(fewRecords);
    const Saved many = saveAll(manyRecords);
    report("Save All of 10,000, against 1,000", "ms", many.ours, few.ours, 11);
    report("Save All of 10,000 records", "ms", many.ours, many.raw, 4);
    return withinLimits() ? 0 : 1;
}
