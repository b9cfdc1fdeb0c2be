#include "platform/base/registered_program.h"

#include <gio/gio.h>

#include <QFile>
#include <memory>

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// What the desktop's library hands out, and how it takes it back.
template <typename T>
using Owned = std::unique_ptr<T, void (*)(void*)>;

/// The kind of a file by its name, and by how it begins where the name doesn't tell.
QByteArray contentType(const QString& path, const QString& name) {
    constexpr qint64 beginningSize = 4096;
    QFile file(path);
    const QByteArray beginning = file.open(QIODevice::ReadOnly) ? file.read(beginningSize) : QByteArray();
    const Owned<char> type(g_content_type_guess(QFile::encodeName(name).constData(),
                                                reinterpret_cast<const guchar*>(beginning.constData()),
                                                static_cast<gsize>(beginning.size()), nullptr),
                           g_free);
    return type.get();
}

void launch(GAppInfo& program, const QString& path) {
    const Owned<GFile> file(g_file_new_for_path(QFile::encodeName(path).constData()), g_object_unref);
    GList files{.data = file.get(), .next = nullptr, .prev = nullptr};
    GError* failure = nullptr;
    if (g_app_info_launch(&program, &files, nullptr, &failure) != FALSE) return;
    const QString words = QString::fromUtf8(failure->message);
    g_error_free(failure);
    throw RuntimeError(Error::NoProgram, words);
}

}  // namespace

void openWithRegisteredProgram(const QString& path, const QString& name) {
    if (!files::fileExists(path)) throw RuntimeError(Error::FileNotFound);
    const Owned<GAppInfo> program(g_app_info_get_default_for_type(contentType(path, name).constData(), FALSE),
                                  g_object_unref);
    if (!program) throw RuntimeError(Error::NoProgram);
    launch(*program, path);
}

}  // namespace platform
