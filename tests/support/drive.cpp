#include "tests/support/drive.h"

#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

#include "tests/support/death.h"
#include "tests/support/headless.h"
#include "tests/support/line_protocol.h"
#include "tests/support/user.h"

namespace support {

namespace {

/// Size of the host window as KINBOOK_DRIVE_SIZE gives it, "1024x700".
QSize hostSize() {
    const QList<QByteArray> numbers = qgetenv("KINBOOK_DRIVE_SIZE").split('x');
    const QSize size(numbers.value(0).toInt(), numbers.value(1).toInt());
    return size.isEmpty() ? QSize(1024, 700) : size;
}

void playLines(const MakeProgram& program) {
    User user(program, hostSize());
    LineProtocol protocol(user);
    for (std::string line; std::getline(std::cin, line);) {
        writeLine(protocol.answer(QByteArray::fromStdString(line)));
    }
    _exit(0);
}

}  // namespace

int drive(int count, char** words, const std::function<MakeProgram(const QString& folder)>& program) {
    if (count != 2) {
        std::fputs("usage: kinbook-drive FOLDER\n", stderr);
        return 2;
    }
    goHeadless();
    watchExceptions();
    watchSignals();
    QApplication application(count, words);
    const MakeProgram make = program(QString::fromLocal8Bit(words[1]));
    std::thread(playLines, make).detach();
    return QApplication::exec();
}

}  // namespace support
