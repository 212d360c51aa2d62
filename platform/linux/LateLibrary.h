#pragma once

#include "platform/Log.h"

#include <QLibrary>
#include <QString>

#include <optional>

namespace norvin {

// Libraries that most moments do without are loaded when they are first wanted. Loaded with the program, they
// and all that they need would make up a tenth of its start.

/// Takes functions out of a library of the system, and remembers whether all were there. What was loaded
/// stays.
class LateLibrary final {
public:
    /// @param name without "lib" and ending
    LateLibrary(const char* name, int version)
        : m_library(QLatin1String(name), version)
        , m_isComplete(m_library.load()) {
        if (!m_isComplete)
            logLine(QStringLiteral("LateLibrary: ") + m_library.errorString());
    }

    template <typename Function>
    void take(Function& function, const char* name) {
        if (m_isComplete)
            function = reinterpret_cast<Function>(m_library.resolve(name));
        m_isComplete = m_isComplete && function;
    }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    QLibrary m_library;
    bool m_isComplete;
};

} // namespace norvin

// clang-format off
// A name that is declared stands in no parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses)
#define NORVIN_LATE_MEMBER(function) decltype(&::function) function = nullptr;
#define NORVIN_LATE_TAKE(function) library.take(all.function, #function);

/// Declares a structure of that name with the functions of a library under their own names. `functions` names a
/// macro that applies another one to each of them. Its find() loads the library with the first call, on any
/// thread, and gives null where it is missing.
#define NORVIN_LATE_LIBRARY(Name, functions, file, version) \
    struct Name { \
        functions(NORVIN_LATE_MEMBER) \
        [[nodiscard]] static const Name* find() { \
            static const std::optional<Name> found = [] { \
                LateLibrary library(file, version); \
                Name all; \
                functions(NORVIN_LATE_TAKE) \
                return library.isComplete() ? std::optional(all) : std::nullopt; \
            }(); \
            return found ? &*found : nullptr; \
        } \
    }
// clang-format on
