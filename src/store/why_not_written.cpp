#include "store/why_not_written.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "text/code_page.h"

namespace vantora {

std::string why_not_written(int error, const std::filesystem::path& folder) {
    switch (error) {
        case EBUSY:
        case ETXTBSY:
        case EAGAIN:
            return "il file è aperto in un altro programma"_cp;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return "il disco è pieno"_cp;
        case EACCES:
        case EPERM:
        case EROFS:
            return ::access(folder.c_str(), W_OK) == 0
                       ? "il file è protetto o aperto in un altro programma"_cp
                       : "la cartella non si può scrivere"_cp;
        case EINVAL:
            return "con quel nome non c'è un file normale"_cp;
        case ENOENT:
        case ENOTDIR:
            return "la cartella manca";
        case EIO:
            return "errore del disco";
        default:
            return "errore del sistema: " + from_utf8(std::generic_category().message(error));
    }
}

}  // namespace vantora
