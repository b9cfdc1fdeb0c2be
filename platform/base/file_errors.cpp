#include "platform/base/file_errors.h"

#include <cerrno>

#include "platform/base/runtime_error.h"

namespace platform::files {

void throwSystemError(int systemError, int missing) {
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            throw RuntimeError(61);
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            throw RuntimeError(70);
        case EIO:
            throw RuntimeError(57);
        case ENOENT:
        case ENOTDIR:
            throw RuntimeError(missing);
        default:
            throw RuntimeError(75);
    }
}

}  // namespace platform::files
