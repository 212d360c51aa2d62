#include "platform/linux/atspi/AtspiElements.h"

#include "platform/linux/atspi/AtspiWindowSearch.h"

#include <algorithm>

namespace norvin {

namespace {

constexpr int accessibilityDisabled = -25211;
constexpr int cannotComplete = -25204;

// Pages of the browser itself have no domain.
bool isWebAddress(const QString& url) {
    return url.startsWith(QLatin1String("http://")) || url.startsWith(QLatin1String("https://"));
}

// The reads that start from one application element: their deadline, and the window that they found.
class Look final {
public:
    explicit Look(AtspiElementSource source)
        : m_source(std::move(source))
        , m_probe(m_source.transport, m_source.clock) {
        if (m_source.transport && !m_source.reader.mayProbe(m_source.processId))
            m_source.access = BrowserReadState::notAnswering;
        if (m_source.transport && m_source.access != BrowserReadState::notAnswering)
            m_source.access = BrowserReadState::readable;
    }

    [[nodiscard]] AtspiProbe& probe() { return m_probe; }

    [[nodiscard]] const AtspiReader::Window& window() {
        if (!m_window) {
            m_window = AtspiReader::Window{.frame = {}, .others = {}, .state = m_source.access};
            if (m_source.access == BrowserReadState::readable) {
                m_window = m_source.reader.findWindow(m_probe, m_source.processId, m_source.windowTitle);
                m_source.reader.conclude(m_source.transport, m_source.processId, m_probe);
                m_reportedFailure = m_probe.failure();
                if (!m_window->others.empty()) // which of them is in front nobody can tell
                    m_window = AtspiReader::Window{};
            }
            if (m_window->frame.isNull())
                m_source.report(m_window->state);
        }
        return *m_window;
    }

    // To be called after each read below the window.
    void settle() {
        if (m_probe.failure() == m_reportedFailure)
            return;
        m_reportedFailure = m_probe.failure();
        m_source.reader.conclude(m_source.transport, m_source.processId, m_probe);
        m_source.report(AtspiReader::stateAfter(m_probe, BrowserReadState::noDocument));
    }

    void report(BrowserReadState state) {
        if (m_probe.failure() == AtspiProbe::Failure::none)
            m_source.report(state);
    }

private:
    AtspiElementSource m_source;
    AtspiProbe m_probe;
    std::optional<AtspiReader::Window> m_window;
    AtspiProbe::Failure m_reportedFailure = AtspiProbe::Failure::none;
};

class Part final : public AccessibilityElement {
public:
    enum class Kind { window, frontDocument, other };

    Part(std::shared_ptr<Look> look, AtspiReference object, Kind kind, quint32 role)
        : m_look(std::move(look))
        , m_object(std::move(object))
        , m_kind(kind)
        , m_role(role) {}

    [[nodiscard]] std::optional<QString> text(const QString& attribute) override {
        std::optional<QString> value = read(attribute);
        m_look->settle();
        return value;
    }

    [[nodiscard]] Elements elements(const QString& attribute) override {
        if (attribute != QLatin1String("AXChildren"))
            return {};
        List list;
        QString front;
        bool hasAddress = false;
        if (m_kind == Kind::window) {
            const AtspiReference document = findFrontDocument(m_look->probe(), m_object);
            front = document.path;
            if (document.isNull()) {
                m_look->report(BrowserReadState::noDocument);
            } else {
                auto page =
                    std::make_shared<Part>(m_look, document, Kind::frontDocument, AtspiRole::documentWeb);
                hasAddress = !page->address().isEmpty();
                list.push_back(std::move(page));
            }
        }
        // A page that gives its address leaves nothing to look for, not even where it is one of the browser's
        // own.
        if (!hasAddress && mayHoldFields())
            appendChildren(list, front);
        m_look->settle();
        if (list.empty() && m_look->probe().failure() != AtspiProbe::Failure::none)
            return {.list = {}, .errorCode = cannotComplete};
        return {.list = std::move(list)};
    }

    void set(const QString&, bool) override {}

private:
    // The content of pages is nobody's business; the others hold no address.
    [[nodiscard]] bool mayHoldFields() const {
        switch (m_role) {
        case AtspiRole::documentWeb:
        case AtspiRole::documentFrame:
        case AtspiRole::menu:
        case AtspiRole::menuBar:
        case AtspiRole::popupMenu:
        case AtspiRole::pageTab:
        case AtspiRole::pageTabList:
        case AtspiRole::pushButton:
            return false;
        default:
            return true;
        }
    }

    void appendChildren(List& list, const QString& except) const {
        AtspiProbe& probe = m_look->probe();
        std::vector<std::pair<quint32, AtspiReference>> found;
        auto children = probe.children(m_object);
        const auto facts = probe.factsOfEach(children);
        for (size_t i = 0; i < children.size(); ++i)
            if (children[i].path != except && (facts[i].states & AtspiState::showing))
                found.emplace_back(facts[i].role, std::move(children[i]));
        std::stable_partition(found.begin(), found.end(),
                              [](const auto& child) { return child.first == AtspiRole::toolBar; });
        for (auto& [role, child] : found)
            list.push_back(std::make_shared<Part>(m_look, std::move(child), Kind::other, role));
    }

    [[nodiscard]] bool isEditable() {
        if (m_role != AtspiRole::entry && m_role != AtspiRole::text && m_role != AtspiRole::comboBox)
            return false;
        if (!m_isEditable)
            m_isEditable = (m_look->probe().states(m_object) & AtspiState::editable) != 0;
        return *m_isEditable;
    }

    [[nodiscard]] const QString& address() {
        if (!m_address)
            m_address = m_look->probe().documentUrl(m_object);
        return *m_address;
    }

    [[nodiscard]] QString objectAttribute(const char* name) {
        if (!m_attributes)
            m_attributes = m_look->probe().attributes(m_object);
        return m_attributes->value(QString::fromLatin1(name));
    }

    [[nodiscard]] std::optional<QString> read(const QString& attribute) {
        const bool isDocument = m_role == AtspiRole::documentWeb;
        if (attribute == QLatin1String("AXRole")) {
            if (m_kind == Kind::window)
                return QStringLiteral("AXWindow");
            if (isDocument)
                return QStringLiteral("AXWebArea");
            return isEditable() ? QStringLiteral("AXTextField") : QStringLiteral("AXGroup");
        }
        if (attribute == QLatin1String("AXURL") && isDocument) {
            const QString url = address();
            if (m_kind == Kind::frontDocument)
                m_look->report(url.isEmpty() ? BrowserReadState::noDocument : BrowserReadState::readable);
            return isWebAddress(url) ? std::optional(url) : std::nullopt;
        }
        if (!isEditable())
            return {};
        if (attribute == QLatin1String("AXValue"))
            return m_look->probe().text(m_object);
        if (attribute == QLatin1String("AXIdentifier")) {
            const QString identifier = objectAttribute("id");
            return identifier.isEmpty() ? std::nullopt : std::optional(identifier);
        }
        if (attribute == QLatin1String("AXSubrole") &&
            objectAttribute("class") == QLatin1String("OmniboxViewViews"))
            return QStringLiteral("AXURLTextField");
        return {};
    }

    std::shared_ptr<Look> m_look;
    AtspiReference m_object;
    Kind m_kind;
    quint32 m_role;
    std::optional<bool> m_isEditable;
    std::optional<QString> m_address;
    std::optional<QHash<QString, QString>> m_attributes;
};

class Application final : public AccessibilityElement {
public:
    explicit Application(AtspiElementSource source)
        : m_look(std::make_shared<Look>(std::move(source))) {}

    [[nodiscard]] std::optional<QString> text(const QString& attribute) override {
        return attribute == QLatin1String("AXRole") ? std::optional(QStringLiteral("AXApplication"))
                                                    : std::nullopt;
    }

    [[nodiscard]] Elements elements(const QString& attribute) override {
        if (attribute != QLatin1String("AXWindows"))
            return {};
        const AtspiReader::Window& window = m_look->window();
        switch (window.state) {
        case BrowserReadState::serviceMissing:
        case BrowserReadState::accessibilityOff:
            return {.list = {}, .errorCode = accessibilityDisabled};
        case BrowserReadState::readable:
            return {.list = List{
                        std::make_shared<Part>(m_look, window.frame, Part::Kind::window, AtspiRole::frame)}};
        case BrowserReadState::noWindow:
            return {.list = List{}};
        default:
            return {.list = {}, .errorCode = cannotComplete};
        }
    }

    void set(const QString& attribute, bool value) override {
        if (attribute != QLatin1String("AXManualAccessibility") || !value)
            return;
        // The question itself wakes the browser's description of its pages.
        if (const AtspiReference& frame = m_look->window().frame; !frame.isNull()) {
            static_cast<void>(m_look->probe().embeddedDocument(frame));
            m_look->settle();
        }
    }

private:
    std::shared_ptr<Look> m_look;
};

} // namespace

std::shared_ptr<AccessibilityElement> atspiApplicationElement(AtspiElementSource source) {
    return std::make_shared<Application>(std::move(source));
}

} // namespace norvin
