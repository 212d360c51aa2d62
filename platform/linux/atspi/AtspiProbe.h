#pragma once

#include "platform/linux/atspi/AtspiTransport.h"

#include <QHash>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace norvin {

class Clock;

/// Numbers that the accessibility interfaces give to roles.
namespace AtspiRole {
inline constexpr quint32 comboBox = 11;
inline constexpr quint32 frame = 23;
inline constexpr quint32 menu = 33;
inline constexpr quint32 menuBar = 34;
inline constexpr quint32 pageTab = 37;
inline constexpr quint32 pageTabList = 38;
inline constexpr quint32 passwordText = 40;
inline constexpr quint32 popupMenu = 41;
inline constexpr quint32 pushButton = 43;
inline constexpr quint32 text = 61;
inline constexpr quint32 toolBar = 63;
inline constexpr quint32 entry = 79;
inline constexpr quint32 documentFrame = 82;
inline constexpr quint32 documentWeb = 95;
} // namespace AtspiRole

/// Bits of an object's states.
namespace AtspiState {
inline constexpr quint64 active = quint64{1} << 1;
inline constexpr quint64 editable = quint64{1} << 7;
inline constexpr quint64 selected = quint64{1} << 23;
inline constexpr quint64 showing = quint64{1} << 25;
} // namespace AtspiState

/// One look into a program through the accessibility bus: all calls of a look share its deadline and a number
/// of calls. What could not be read is absent or empty; after a failure nothing more is asked. Whatever a
/// program answers is taken as far as it has the expected form. Objects of other programs are left out.
/// Main thread only.
class AtspiProbe final {
public:
    /// @param clock outlives the probe
    AtspiProbe(std::shared_ptr<AtspiTransport> transport, const Clock& clock);

    static constexpr std::chrono::milliseconds length{280}; // timers may be 5 % late
    static constexpr int mostCalls = 3000;
    static constexpr size_t mostChildren = 256;
    /// Longer texts are cut to this many characters.
    static constexpr qsizetype longestText = 16'384;

    enum class Failure {
        none,
        silent,    ///< the program did not answer although there was time for it
        gone,      ///< the program or the bus has left
        exhausted, ///< the deadline or the number of calls was reached
    };
    [[nodiscard]] Failure failure() const { return m_failure; }
    /// The program that was silent or gone, by its name on the bus; empty after no such failure.
    [[nodiscard]] const QString& failedService() const { return m_failedService; }
    /// Goes on after a program had gone, to look for its successor.
    void forgetGone();

    /// The programs on the bus, as the registry lists them.
    [[nodiscard]] std::vector<AtspiReference> applications();
    /// Process id of a connection to the bus; none when it could not be read.
    [[nodiscard]] std::optional<qint64> processOf(const QString& service);

    using References = std::vector<AtspiReference>;
    [[nodiscard]] References children(const AtspiReference& object);
    [[nodiscard]] quint64 states(const AtspiReference& object);
    // Of many objects at once, which takes hardly longer than one; as many answers as objects.
    [[nodiscard]] std::vector<References> childrenOfEach(const References& objects);
    struct Facts {
        /// 0, which no object has, when it could not be read.
        quint32 role = 0;
        quint64 states = 0;
    };
    [[nodiscard]] std::vector<Facts> factsOfEach(const References& objects);
    [[nodiscard]] QHash<QString, QString> attributes(const AtspiReference& object);
    /// The document that a window shows in front; null where it names none. Asking makes browsers that have
    /// not described their pages so far begin with it.
    [[nodiscard]] AtspiReference embeddedDocument(const AtspiReference& window);
    struct WindowFacts {
        QString name;
        AtspiReference document; ///< as embeddedDocument()
        QString documentName;    ///< empty where there is no document
    };
    [[nodiscard]] std::vector<WindowFacts> windowFactsOfEach(const References& windows);
    /// Name of the toolkit that a program's windows are made with; empty when it does not say.
    [[nodiscard]] QString toolkit(const AtspiReference& application);
    /// Address of a document; empty where it gives none.
    [[nodiscard]] QString documentUrl(const AtspiReference& object);
    /// The text that an input field holds.
    [[nodiscard]] QString text(const AtspiReference& object);
    /// Does what a click on the object does.
    /// @return whether the program said that it did
    bool doAction(const AtspiReference& object);

private:
    [[nodiscard]] std::vector<QVariantList> callEach(std::vector<AtspiCall> calls);
    [[nodiscard]] QVariantList call(const AtspiReference& target, QLatin1String interface,
                                    QLatin1String member, const QVariantList& arguments = {});

    std::shared_ptr<AtspiTransport> m_transport;
    const Clock& m_clock;
    std::chrono::milliseconds m_deadline;
    int m_calls = 0;
    Failure m_failure = Failure::none;
    QString m_failedService;
};

} // namespace norvin
