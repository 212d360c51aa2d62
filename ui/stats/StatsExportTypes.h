#pragma once

#include "stats/StatsExport.h"

#include <QQmlEngine>

namespace norvin::qml {

struct StatsExportType {
    Q_GADGET
    QML_FOREIGN(norvin::StatsExport)
    QML_NAMED_ELEMENT(StatsExport)
    QML_UNCREATABLE("Belongs to the statistics")
};

} // namespace norvin::qml
