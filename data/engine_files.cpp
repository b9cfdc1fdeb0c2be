#include "data/engine_files.h"

#include <sqlite3.h>

namespace data {

namespace {

constexpr const char* ourName = "kinbook";

int deleteFile(sqlite3_vfs* files, const char* path, int flushFolder) {
    static const auto systemDelete = sqlite3_vfs_find(nullptr)->xDelete;
    const int result = systemDelete(files, path, flushFolder);
    return result == SQLITE_IOERR_DIR_FSYNC ? SQLITE_OK : result;
}

sqlite3_vfs& registered() {
    static sqlite3_vfs files = *sqlite3_vfs_find(nullptr);
    files.zName = ourName;
    files.pNext = nullptr;
    files.xDelete = deleteFile;
    sqlite3_vfs_register(&files, 0);
    return files;
}

}  // namespace

const char* engineFiles() {
    static const sqlite3_vfs& files = registered();
    return files.zName;
}

}  // namespace data
