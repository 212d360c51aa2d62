#pragma once

#include <QString>

#include <functional>

namespace norvin {

/// Writes one diagnostic line to standard output, in UTF-8, and flushes it. Lines begin with the class name
/// and a colon where they belong to a service. Any thread.
void logLine(const QString& line);

/// Sends the lines somewhere else (a test's list) until called with an empty function.
/// Main thread only; the sink is called on the thread that logs.
void setLogSink(std::function<void(const QString&)> function);

} // namespace norvin
