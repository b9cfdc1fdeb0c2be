#include "tests/support/death.h"

#include <unistd.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <mutex>

using namespace Qt::StringLiterals;

namespace support {

namespace {

constexpr int exitStatus = 70;

std::mutex& outputGuard() {
    static std::mutex guard;
    return guard;
}

void put(const QByteArray& line) {
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

QString wordsOf(const std::exception_ptr& exception) {
    if (!exception) return u"terminated"_s;
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception& failure) {
        return QString::fromUtf8(failure.what());
    } catch (...) {
        return u"unknown exception"_s;
    }
}

/// Nothing may be allocated here, so the line has its number put in by hand.
void endBySignal(int signal) {
    std::array line = std::to_array("\n{\"error\":\"died: signal 00\",\"ok\":false}\n");
    constexpr std::size_t tens = 24;
    line[tens] = static_cast<char>('0' + signal / 10);
    line[tens + 1] = static_cast<char>('0' + signal % 10);
    // The line before is whole as a rule.
    [[maybe_unused]] const ssize_t written = write(STDOUT_FILENO, line.data() + 1, line.size() - 2);
    _exit(exitStatus);
}

}  // namespace

void writeLine(const QByteArray& line) {
    const std::lock_guard lock(outputGuard());
    put(line);
}

void die(const QString& reason) {
    // Kept to the end: nothing may be said behind it.
    outputGuard().lock();
    const QJsonObject last{{u"ok"_s, false}, {u"error"_s, u"died: "_s + reason}};
    put(QJsonDocument(last).toJson(QJsonDocument::Compact));
    _exit(exitStatus);
}

void watchExceptions() {
    std::set_terminate([] { die(wordsOf(std::current_exception())); });
}

void watchSignals() {
    // An endless recursion leaves no stack to tell of it.
    static std::array<char, 64 * 1024> stack{};
    const stack_t spare{.ss_sp = stack.data(), .ss_flags = 0, .ss_size = stack.size()};
    sigaltstack(&spare, nullptr);
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        struct sigaction present {};
        sigaction(signal, nullptr, &present);
        if (present.sa_handler != SIG_DFL) continue;
        struct sigaction ours {};
        ours.sa_handler = endBySignal;
        ours.sa_flags = SA_ONSTACK;
        sigaction(signal, &ours, nullptr);
    }
}

}  // namespace support
