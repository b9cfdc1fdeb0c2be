#include <cstdio>

#include "data/connection.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

/// Saves for ever, by turns a new row and the first one anew, and reports each save when it has returned: a program to
/// kill.
int main(int, char** arguments) {
    data::Connection connection;
    connection.open(QString::fromLocal8Bit(arguments[1]));
    data::Recordset rows(data::Opening::Screen);
    rows.open(u"Select Max(Number) as n from Log"_s, connection);
    int number = rows.value(u"n"_s).toInt();
    rows.close();
    rows.open(u"Select * from Log where ID = 1"_s, connection);
    while (true) {
        ++number;
        if (number % 2 == 1)
            rows.addNew();
        else
            rows.moveFirst();
        rows.setValue(u"Number"_s, number);
        rows.setValue(u"Twin"_s, number);
        rows.setValue(u"Comment"_s, QString(number % 9 * 3000, u'x'));
        rows.update();
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}
