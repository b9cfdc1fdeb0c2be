#include <gtest/gtest.h>

#include <QApplication>
#include <thread>

#include "tests/support/death.h"
#include "tests/support/headless.h"

// The windows live in the main thread; the tests run beside it, as the user does.
int main(int count, char** words) {
    ::testing::InitGoogleTest(&count, words);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    support::goHeadless();
    support::watchExceptions();
    QApplication application(count, words);
    int result = 1;
    std::thread tests([&] {
        result = RUN_ALL_TESTS();
        QMetaObject::invokeMethod(
            &application, [] { QApplication::quit(); }, Qt::QueuedConnection);
    });
    QApplication::exec();
    tests.join();
    return result;
}
