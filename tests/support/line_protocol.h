#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace support {

class User;

/// Plays a user by lines of text: a command with its arguments in, one line of JSON out.
class LineProtocol {
public:
    explicit LineProtocol(User& user) : user_(user) {}

    /// Carries out a command and gives the answer, compact JSON without a line end. A failure is an answer too.
    [[nodiscard]] QByteArray answer(const QByteArray& line);

private:
    [[nodiscard]] QJsonObject run(const QString& command, const QStringList& arguments);

    User& user_;
};

/// The words of a line, bare or as JSON strings. Throws Refused for a string that is not closed or not JSON.
[[nodiscard]] QStringList wordsOf(const QString& line);

}  // namespace support
