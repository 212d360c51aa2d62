#pragma once

#include <QObject>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>

class QWindow;

namespace norvin {

class Clock;
class ClockTimer;
class Preferences;

/// Remembers where the window was and how large, from one start to the next. Main thread only.
class WindowGeometry final : public QObject {
    Q_OBJECT
public:
    static constexpr auto geometryKey = "window_geometry";
    static constexpr auto maximizedKey = "window_maximized";

    /// Puts the window where it was, and follows it. A place that is on no screen any more is left to the
    /// window manager, and a size that no screen has room for is made smaller. @param window not shown yet;
    /// all must outlive this
    WindowGeometry(QWindow& window, Preferences& preferences, Clock& clock, QObject* parent = nullptr);
    ~WindowGeometry() override;

private:
    void restore();
    void keepSoon();
    void keep();

    QWindow& m_window;
    Preferences& m_preferences;
    Clock& m_clock;
    std::unique_ptr<ClockTimer> m_settling;
};

/// "x y width height" in pixels; the place is that of the frame, the size that of what is inside.
[[nodiscard]] QString geometryText(const QRect& geometry);
/// None for any other text, for a size that is not above zero, and for numbers beyond any desktop.
[[nodiscard]] std::optional<QRect> geometryFromText(const QString& text);

} // namespace norvin
