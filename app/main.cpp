#include <QApplication>

#include "app/kinbook.h"
#include "platform/forms/desktop.h"

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    app::Kinbook kinbook(QCoreApplication::applicationDirPath());
    kinbook.main();
    if (kinbook.desktop().count() == 0) return 0;
    QObject::connect(&kinbook.desktop(), &platform::Desktop::emptied, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
