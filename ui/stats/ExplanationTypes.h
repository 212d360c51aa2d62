#pragma once

#include "stats/StatsExplanation.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes that explain and correct figures, under the names that QML knows them by.

struct StatsExplanationType {
    Q_GADGET
    QML_FOREIGN(norvin::StatsExplanation)
    QML_NAMED_ELEMENT(StatsExplanation)
    QML_UNCREATABLE("Belongs to the statistics")
};

struct ExplanationRowsType {
    Q_GADGET
    QML_FOREIGN(norvin::ExplanationRows)
    QML_NAMED_ELEMENT(ExplanationRows)
    QML_UNCREATABLE("Belongs to the explanation of a figure")
};

struct UsageIntervalRowsType {
    Q_GADGET
    QML_FOREIGN(norvin::UsageIntervalRows)
    QML_NAMED_ELEMENT(UsageIntervalRows)
    QML_UNCREATABLE("Belongs to the explanation of a figure")
};

struct SessionDetailType {
    Q_GADGET
    QML_FOREIGN(norvin::SessionDetail)
    QML_NAMED_ELEMENT(SessionDetail)
    QML_UNCREATABLE("Belongs to the explanation of a figure")
};

struct SessionTaskListType {
    Q_GADGET
    QML_FOREIGN(norvin::SessionTaskList)
    QML_NAMED_ELEMENT(SessionTaskList)
    QML_UNCREATABLE("Belongs to the explanation of a figure")
};

} // namespace norvin::qml
