#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <utility>

namespace norvin {

/// The one instance of a process-wide service, made on first use by a factory that start-up has set.
/// Everything but start-up is handed the services that it needs; nothing else asks here. Main thread only.
template <class Service>
class SharedInstance final {
public:
    /// To be called before the first get(); an instance that is there already stays.
    static void setFactory(std::function<std::unique_ptr<Service>()> factory) {
        slot().factory = std::move(factory);
    }

    /// The instance, made now if this is the first call. Needs a factory.
    [[nodiscard]] static Service& get() {
        Slot& own = slot();
        if (!own.instance) {
            Q_ASSERT_X(own.factory, "SharedInstance", "asked for before start-up said how to make it");
            own.instance = own.factory();
        }
        return *own.instance;
    }

    /// Ends the instance and forgets how to make one.
    static void reset() {
        slot().instance.reset();
        slot().factory = {};
    }

private:
    struct Slot {
        std::function<std::unique_ptr<Service>()> factory;
        std::unique_ptr<Service> instance;
    };
    static Slot& slot() {
        static Slot own;
        return own;
    }
};

} // namespace norvin
