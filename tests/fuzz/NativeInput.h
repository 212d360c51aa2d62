#pragma once

#include <QByteArray>
#include <QList>

#include <cstddef>
#include <cstdint>

/// What a fuzzer's input stands for on a stream of messages: after a "T" and a line end, each line is one
/// message, whose length goes before it; anything else is what it is.
[[nodiscard]] inline QByteArray nativeStream(const uint8_t* data, size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (!input.startsWith("T\n"))
        return input;
    QByteArray stream;
    for (const QByteArray& line : input.sliced(2).split('\n')) {
        const auto length = static_cast<quint32>(line.size());
        stream.append(reinterpret_cast<const char*>(&length), sizeof length);
        stream.append(line);
    }
    return stream;
}
