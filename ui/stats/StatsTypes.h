#pragma once

#include "stats/AppTotalRows.h"
#include "stats/ChartModel.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsScreen.h"
#include "stats/StatsSessionRows.h"
#include "stats/TodayStatsView.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes behind the statistics, under the names that QML knows them by.

struct StatsScreenType {
    Q_GADGET
    QML_FOREIGN(norvin::StatsScreen)
    QML_NAMED_ELEMENT(StatsScreen)
    QML_UNCREATABLE("Handed to the window")
};

struct TodayStatsViewType {
    Q_GADGET
    QML_FOREIGN(norvin::TodayStatsView)
    QML_NAMED_ELEMENT(TodayStatsView)
    QML_UNCREATABLE("Belongs to the statistics")
};

struct HistoryStatsViewType {
    Q_GADGET
    QML_FOREIGN(norvin::HistoryStatsView)
    QML_NAMED_ELEMENT(HistoryStatsView)
    QML_UNCREATABLE("Belongs to the statistics")
};

struct ChartModelType {
    Q_GADGET
    QML_FOREIGN(norvin::ChartModel)
    QML_NAMED_ELEMENT(ChartModel)
    QML_UNCREATABLE("Belongs to the statistics")
};

struct AppTotalRowsType {
    Q_GADGET
    QML_FOREIGN(norvin::AppTotalRows)
    QML_NAMED_ELEMENT(AppTotalRows)
    QML_UNCREATABLE("Belongs to the statistics")
};

struct StatsSessionRowsType {
    Q_GADGET
    QML_FOREIGN(norvin::StatsSessionRows)
    QML_NAMED_ELEMENT(StatsSessionRows)
    QML_UNCREATABLE("Belongs to the statistics")
};

} // namespace norvin::qml
