#include "store/station.h"

#include <pwd.h>
#include <unistd.h>

#include "text/code_page.h"

namespace vantora {

std::string this_station() {
    char host[256] = "";
    ::gethostname(host, sizeof host - 1);
    const passwd* user = ::getpwuid(::geteuid());
    return from_utf8(std::string(user ? user->pw_name : "?") + " su " + host);
}

}  // namespace vantora
