#include <QFile>
#include <QTextStream>
#include <exception>

#include "data/template.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

/// make_template PATH: writes the empty database file, for the build.
int main(int argc, char* argv[]) {
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: make_template PATH\n"_L1;
        return 2;
    }
    try {
        data::createTemplate(QFile::decodeName(argv[1]));
        return 0;
    } catch (const platform::RuntimeError& error) {
        err << error.report() << u'\n';
    } catch (const std::exception& error) {
        err << QString::fromLocal8Bit(error.what()) << u'\n';
    }
    return 1;
}
