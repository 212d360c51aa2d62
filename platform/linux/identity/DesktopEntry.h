#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace norvin {

/// What identification needs of one installed desktop entry.
struct DesktopEntry {
    /// Desktop id without ".desktop" ("org.gnome.TextEditor").
    QString id;
    /// Name in the user's language.
    QString name;
    /// Icon theme name or absolute path; empty when there is none.
    QString iconName;
    QStringList categories;
    /// Class of the windows, as the entry declares it; empty when it declares none.
    QString windowClass;
    /// The command line's words.
    QStringList command;
    /// Whether menus show the entry.
    bool shown = true;
};

/// The installed desktop entries. Main thread only.
class DesktopEntrySource {
public:
    DesktopEntrySource() = default;
    DesktopEntrySource(const DesktopEntrySource&) = delete;
    DesktopEntrySource& operator=(const DesktopEntrySource&) = delete;
    virtual ~DesktopEntrySource() = default;

    /// The entries; the reference stays valid until the next call.
    [[nodiscard]] virtual const std::vector<DesktopEntry>& entries() const = 0;

    /// Grows whenever entries() has changed.
    [[nodiscard]] virtual quint64 generation() const = 0;
};

} // namespace norvin
