// From the start of the process to the splash window on screen, against a bare window with an MDI area.
//
// Each round starts this program anew as a child that ends itself as soon as its window is exposed.

#include <unistd.h>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QExposeEvent>
#include <QFile>
#include <QMainWindow>
#include <QMdiArea>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>
#include <algorithm>
#include <cstdio>

#include "app/kinbook.h"
#include "data/template.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 15;
constexpr double limit = 1.5;

class EndWhenExposed : public QObject {
public:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const auto* window = qobject_cast<QWindow*>(receiver);
        if (window && event->type() == QEvent::Expose && window->isExposed()) _exit(0);
        return false;
    }
};

int showBare(QApplication& application) {
    QMainWindow window;
    window.setCentralWidget(new QMdiArea);
    window.show();
    return application.exec();
}

int showSplash(const QString& folder) {
    app::Kinbook kinbook(folder);
    kinbook.main();
    return 1;
}

double bestMilliseconds(const QStringList& arguments) {
    double best = 1e9;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        if (QProcess::execute(QCoreApplication::applicationFilePath(), arguments) != 0) return -1;
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    EndWhenExposed watcher;
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1) application.installEventFilter(&watcher);
    if (arguments.value(1) == u"bare"_s) return showBare(application);
    if (arguments.value(1) == u"splash"_s) return showSplash(arguments.value(2));

    const QTemporaryDir folder;
    data::createTemplate(folder.filePath(u"FamilyInfo.mdb"_s));
    QFile definition(folder.filePath(u"SplashDef.txt"_s));
    if (!definition.open(QIODevice::WriteOnly)) return 1;
    definition.write("CompanyName=Larkmoor\r\nNameFontSize=28\r\nProductName=Kinbook\r\nSplash=1\r\n");
    definition.close();
    const double bare = bestMilliseconds({u"bare"_s});
    const double splash = bestMilliseconds({u"splash"_s, folder.path()});
    if (bare <= 0 || splash <= 0) return 1;
    std::printf("splash on screen             ours %7.1f ms   bare window %7.1f ms   ratio %.2f (limit %.1f)\n", splash,
                bare, splash / bare, limit);
    return splash / bare <= limit ? 0 : 1;
}
