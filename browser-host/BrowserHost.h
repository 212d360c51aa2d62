#pragma once

#include "platform/linux/webextension/BrowserMessage.h"
#include "platform/linux/webextension/BrowserSocket.h"
#include "platform/linux/webextension/MessageStream.h"

#include <chrono>
#include <optional>

namespace norvin {

/// Carries messages between the extension that a browser runs, at the two ends of this program's standard
/// input and output, and the application, on its socket. Only messages that both know pass, and of those only
/// the known fields. Complains on standard error. Sleeps while nothing happens: the application's coming is
/// an event in the socket's directory.
class BrowserHost final {
public:
    /// @param input, output the browser's ends, which stay open; output must not block
    BrowserHost(int input, int output, BrowserSocket socket);
    ~BrowserHost();
    BrowserHost(const BrowserHost&) = delete;
    BrowserHost& operator=(const BrowserHost&) = delete;

    /// Works until the browser has gone.
    /// @return the exit code: 0, or 1 where the browser broke the rules or this program could not go on
    [[nodiscard]] int run();

private:
    [[nodiscard]] bool watchDirectory();
    [[nodiscard]] bool readWatch();
    void connectToApplication();
    void leaveApplication(bool willReturn);
    [[nodiscard]] bool serveBrowser(bool isReadable, bool isWritable);
    void serveApplication(bool isReadable, bool isWritable);
    void forwardToApplication(const BrowserMessage& message);
    [[nodiscard]] int millisecondsToRetry() const;

    const int m_input;
    const int m_output;
    const BrowserSocket m_socket;
    int m_watch = -1;
    int m_application = -1;
    std::optional<std::chrono::steady_clock::time_point> m_retryAt;
    MessageStream m_fromBrowser;
    std::optional<MessageStream> m_withApplication;
    std::optional<PageMessage> m_page;
};

} // namespace norvin
