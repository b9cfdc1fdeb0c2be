#include "tests/support/line_protocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <array>

#include "tests/support/refused.h"
#include "tests/support/user.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

/// Something that a user does; the state is the answer.
struct Gesture {
    QLatin1StringView name;
    int arguments;
    void (*run)(User& user, const QStringList& words);
};

/// Something that a user looks at; at most one argument may be left out.
struct Look {
    QLatin1StringView name;
    int fewest;
    int most;
    QJsonObject (*run)(User& user, const QString& word);
};

int rowOf(const QString& word) {
    bool isNumber = false;
    const int row = word.toInt(&isNumber);
    if (!isNumber) throw Refused(u"not a row: "_s + word);
    return row;
}

constexpr std::array<Gesture, 20> gestures{{
    {"start"_L1, 0, [](User& user, const QStringList&) { user.start(); }},
    {"click"_L1, 1, [](User& user, const QStringList& words) { user.click(words[0]); }},
    {"fill"_L1, 2, [](User& user, const QStringList& words) { user.fill(words[0], words[1]); }},
    {"type"_L1, 1, [](User& user, const QStringList& words) { user.type(words[0]); }},
    {"key"_L1, 1, [](User& user, const QStringList& words) { user.key(words[0]); }},
    {"pick"_L1, 2, [](User& user, const QStringList& words) { user.pick(words[0], words[1]); }},
    {"node"_L1, 1, [](User& user, const QStringList& words) { user.node(words[0]); }},
    {"expand"_L1, 1, [](User& user, const QStringList& words) { user.expand(words[0]); }},
    {"collapse"_L1, 1, [](User& user, const QStringList& words) { user.collapse(words[0]); }},
    {"menu"_L1, 1, [](User& user, const QStringList& words) { user.menu(words[0]); }},
    {"tool"_L1, 1, [](User& user, const QStringList& words) { user.tool(words[0]); }},
    {"popup"_L1, 1, [](User& user, const QStringList& words) { user.popup(words[0]); }},
    {"answer"_L1, 1, [](User& user, const QStringList& words) { user.answer(words[0]); }},
    {"choose"_L1, 1, [](User& user, const QStringList& words) { user.choose(words[0]); }},
    {"enter"_L1, 1, [](User& user, const QStringList& words) { user.enter(words[0]); }},
    {"cancel"_L1, 0, [](User& user, const QStringList&) { user.cancel(); }},
    {"dismiss"_L1, 0, [](User& user, const QStringList&) { user.dismiss(); }},
    {"select"_L1, 2, [](User& user, const QStringList& words) { user.select(words[0], rowOf(words[1])); }},
    {"close"_L1, 0, [](User& user, const QStringList&) { user.close(); }},
    {"state"_L1, 0, [](User&, const QStringList&) {}},
}};

constexpr std::array<Look, 8> looks{{
    {"session"_L1, 0, 0, [](User& user, const QString&) { return user.session(); }},
    {"form"_L1, 0, 1, [](User& user, const QString& name) { return user.form(name); }},
    {"get"_L1, 1, 1, [](User& user, const QString& name) { return user.control(name); }},
    {"tree"_L1, 0, 0, [](User& user, const QString&) { return user.tree(); }},
    {"grid"_L1, 0, 1, [](User& user, const QString& name) { return user.grid(name); }},
    {"shot"_L1, 1, 1,
     [](User& user, const QString& file) {
         user.shot(file);
         return QJsonObject();
     }},
    {"printer"_L1, 1, 1,
     [](User& user, const QString& file) {
         user.setPrinter(file);
         return QJsonObject();
     }},
    {"jobs"_L1, 0, 0,
     [](User& user, const QString&) {
         return QJsonObject{{u"jobs"_s, user.jobs()}};
     }},
}};

void checkCount(const QString& command, qsizetype count, int fewest, int most) {
    if (count < fewest || count > most) throw Refused(u"wrong number of arguments for "_s + command);
}

/// Position behind the JSON string that begins at `start`.
qsizetype endOfString(const QString& line, qsizetype start) {
    for (qsizetype i = start + 1; i < line.size(); ++i) {
        if (line.at(i) == u'\\') {
            ++i;
        } else if (line.at(i) == u'"') {
            return i + 1;
        }
    }
    throw Refused(u"the string is not closed"_s);
}

QString decoded(const QString& string) {
    const QJsonDocument document = QJsonDocument::fromJson(u"[%1]"_s.arg(string).toUtf8());
    if (!document.isArray()) throw Refused(u"not a JSON string: "_s + string);
    return document.array().at(0).toString();
}

}  // namespace

QStringList wordsOf(const QString& line) {
    QStringList words;
    for (qsizetype i = 0; i < line.size();) {
        if (line.at(i).isSpace()) {
            ++i;
        } else if (line.at(i) == u'"') {
            const qsizetype end = endOfString(line, i);
            words.append(decoded(line.mid(i, end - i)));
            i = end;
        } else {
            qsizetype end = i;
            while (end < line.size() && !line.at(end).isSpace())
                ++end;
            words.append(line.mid(i, end - i));
            i = end;
        }
    }
    return words;
}

QByteArray LineProtocol::answer(const QByteArray& line) {
    QJsonObject answer;
    try {
        QStringList words = wordsOf(QString::fromUtf8(line));
        if (words.isEmpty()) throw Refused(u"no command"_s);
        const QString command = words.takeFirst();
        answer = run(command, words);
        answer[u"ok"_s] = true;
    } catch (const std::exception& failure) {
        answer = {{u"ok"_s, false}, {u"error"_s, QString::fromUtf8(failure.what())}};
    }
    user_.forgetNoises();
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

QJsonObject LineProtocol::run(const QString& command, const QStringList& arguments) {
    for (const Gesture& gesture : gestures) {
        if (command != gesture.name) continue;
        checkCount(command, arguments.size(), gesture.arguments, gesture.arguments);
        gesture.run(user_, arguments);
        return user_.state();
    }
    for (const Look& look : looks) {
        if (command != look.name) continue;
        checkCount(command, arguments.size(), look.fewest, look.most);
        return look.run(user_, arguments.value(0));
    }
    throw Refused(u"unknown command: "_s + command);
}

}  // namespace support
