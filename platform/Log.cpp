#include "platform/Log.h"

#include <QByteArray>

#include <cstdio>
#include <mutex>

namespace norvin {

namespace {

struct Sink {
    std::mutex mutex;
    std::function<void(const QString&)> function;
};

Sink& sink() {
    static Sink instance;
    return instance;
}

} // namespace

void logLine(const QString& line) {
    std::function<void(const QString&)> function;
    {
        const std::lock_guard lock(sink().mutex);
        function = sink().function;
    }
    if (function) {
        function(line);
        return;
    }
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void setLogSink(std::function<void(const QString&)> function) {
    const std::lock_guard lock(sink().mutex);
    sink().function = std::move(function);
}

} // namespace norvin
