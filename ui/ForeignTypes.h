#pragma once

#include "distraction/AICoachService.h"
#include "distraction/ApplicationListModel.h"
#include "distraction/BlockListSuggestions.h"
#include "distraction/BlockListsScreen.h"
#include "distraction/BrowserAlertModel.h"
#include "distraction/BrowserHealth.h"
#include "distraction/BrowserListModel.h"
#include "distraction/SiteListModel.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "focus/TaskPickerModel.h"
#include "focus/TaskQueueModel.h"
#include "sound/TickSoundSettings.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"
#include "ui/TextFormats.h"
#include "ui/shell/CommandPalette.h"
#include "ui/shell/WindowActions.h"

#include <QJSEngine>
#include <QQmlEngine>
#include <QVariant>

namespace norvin::qml {

// The classes that QML meets, under the names that it knows them by. The classes themselves know nothing of
// QML.

struct DeepWorkScreenType {
    Q_GADGET
    QML_FOREIGN(norvin::DeepWorkScreen)
    QML_NAMED_ELEMENT(DeepWorkScreen)
    QML_UNCREATABLE("Handed to the window")
};

struct TaskQueueModelType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskQueueModel)
    QML_NAMED_ELEMENT(TaskQueueModel)
    QML_UNCREATABLE("Belongs to the Deep Work screen")
};

struct TaskPickerModelType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskPickerModel)
    QML_NAMED_ELEMENT(TaskPickerModel)
    QML_UNCREATABLE("Belongs to the Deep Work screen")
};

struct BlockListsScreenType {
    Q_GADGET
    QML_FOREIGN(norvin::BlockListsScreen)
    QML_NAMED_ELEMENT(BlockListsScreen)
    QML_UNCREATABLE("Handed to the window")
};

struct ApplicationListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::ApplicationListModel)
    QML_NAMED_ELEMENT(ApplicationListModel)
    QML_UNCREATABLE("Belongs to the block-list screen")
};

struct BrowserListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::BrowserListModel)
    QML_NAMED_ELEMENT(BrowserListModel)
    QML_UNCREATABLE("Belongs to the block-list screen")
};

struct SiteListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::SiteListModel)
    QML_NAMED_ELEMENT(SiteListModel)
    QML_UNCREATABLE("Belongs to the block-list screen")
};

struct BrowserHealthType {
    Q_GADGET
    QML_FOREIGN(norvin::BrowserHealth)
    QML_NAMED_ELEMENT(BrowserHealth)
    QML_UNCREATABLE("Belongs to the block-list screen")
};

struct BlockListSuggestionsType {
    Q_GADGET
    QML_FOREIGN(norvin::BlockListSuggestions)
    QML_NAMED_ELEMENT(BlockListSuggestions)
    QML_UNCREATABLE("Belongs to the block-list screen")
};

struct TickSoundSettingsType {
    Q_GADGET
    QML_FOREIGN(norvin::TickSoundSettings)
    QML_NAMED_ELEMENT(TickSoundSettings)
    QML_UNCREATABLE("Handed to the window")
};

struct TrackingHealthModelType {
    Q_GADGET
    QML_FOREIGN(norvin::TrackingHealthModel)
    QML_NAMED_ELEMENT(TrackingHealthModel)
    QML_UNCREATABLE("Handed to the window")
};

struct WindowActionsType {
    Q_GADGET
    QML_FOREIGN(norvin::WindowActions)
    QML_NAMED_ELEMENT(WindowActions)
    QML_UNCREATABLE("Handed to the window")
};

struct CommandPaletteType {
    Q_GADGET
    QML_FOREIGN(norvin::CommandPalette)
    QML_NAMED_ELEMENT(CommandPalette)
    QML_UNCREATABLE("Handed to the window")
};

struct AICoachServiceType {
    Q_GADGET
    QML_FOREIGN(norvin::AICoachService)
    QML_NAMED_ELEMENT(AICoachService)
    QML_UNCREATABLE("Handed to the window")
};

struct BrowserAlertModelType {
    Q_GADGET
    QML_FOREIGN(norvin::BrowserAlertModel)
    QML_NAMED_ELEMENT(BrowserAlertModel)
    QML_UNCREATABLE("Handed to the alert")
};

struct TextFormatsType {
    Q_GADGET
    QML_FOREIGN(norvin::TextFormats)
    QML_NAMED_ELEMENT(TextFormats)
    QML_UNCREATABLE("Belongs to Localization")
};

/// An object that the engine was given under a property's name before anything was loaded.
template <typename T>
T* handedTo(QQmlEngine* engine, const char* property) {
    auto* object = engine->property(property).template value<T*>();
    QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
    return object;
}

struct LocalizationType {
    Q_GADGET
    QML_FOREIGN(norvin::Localization)
    QML_NAMED_ELEMENT(Localization)
    QML_SINGLETON
public:
    static constexpr auto engineProperty = "norvinLocalization";
    static Localization* create(QQmlEngine* engine, QJSEngine*) {
        return handedTo<Localization>(engine, engineProperty);
    }
};

struct MotionPreferenceType {
    Q_GADGET
    QML_FOREIGN(norvin::MotionPreference)
    QML_NAMED_ELEMENT(MotionPreference)
    QML_SINGLETON
public:
    static constexpr auto engineProperty = "norvinMotionPreference";
    static MotionPreference* create(QQmlEngine* engine, QJSEngine*) {
        return handedTo<MotionPreference>(engine, engineProperty);
    }
};

} // namespace norvin::qml
