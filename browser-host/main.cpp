#include "browser-host/BrowserHost.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <optional>

// The native host of the browser extension: browsers start it, and give it the extension's name as arguments.
int main() {
    std::signal(SIGPIPE, SIG_IGN);
    const std::optional<norvin::BrowserSocket> socket = norvin::browserSocket();
    if (!socket) {
        std::fputs("norvin-focus-browser-host: XDG_RUNTIME_DIR is not set, or its path is too long\n",
                   stderr);
        return 1;
    }
    // A browser that stands still must not hold up the messages to the application.
    const int flags = ::fcntl(STDOUT_FILENO, F_GETFL);
    ::fcntl(STDOUT_FILENO, F_SETFL, flags | O_NONBLOCK);
    return norvin::BrowserHost(STDIN_FILENO, STDOUT_FILENO, *socket).run();
}
