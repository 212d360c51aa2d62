#include "platform/linux/identity/ApplicationIdentity.h"

#include "platform/linux/identity/BundleIdentifiers.h"

namespace norvin {

namespace {

constexpr int ambiguous = -1;

// Toolkits' own class names: shared by every program that does not set one.
bool isGenericClass(const QString& className) {
    static const QStringList generic = {QStringLiteral("tk"), QStringLiteral("toplevel"),
                                        QStringLiteral("unknown"), QStringLiteral("sun-awt-x11-xframepeer")};
    const QString name = className.toLower();
    return name.isEmpty() || generic.contains(name) || isInterpreter(name);
}

// An entry that menus show wins over a hidden one of the same name; two alike are no answer.
void addName(QHash<QString, int>& names, const QString& name, int position,
             const std::vector<DesktopEntry>& entries) {
    if (name.isEmpty())
        return;
    const QString key = name.toLower();
    const auto it = names.find(key);
    if (it == names.end()) {
        names.insert(key, position);
        return;
    }
    const bool shown = entries[static_cast<size_t>(position)].shown;
    const bool otherShown = *it == ambiguous || entries[static_cast<size_t>(*it)].shown;
    if (shown && !otherShown)
        *it = position;
    else if (shown == otherShown)
        *it = ambiguous;
}

} // namespace

ApplicationIdentity::ApplicationIdentity(const DesktopEntrySource& entries, QString processRoot)
    : m_entries(entries)
    , m_processRoot(std::move(processRoot)) {}

void ApplicationIdentity::updateIndex() const {
    const std::vector<DesktopEntry>& entries = m_entries.entries();
    if (m_indexedGeneration == m_entries.generation())
        return;
    m_indexedGeneration = m_entries.generation();
    for (QHash<QString, int>* names : {&m_byId, &m_byWindowClass, &m_byLastSegment, &m_byProgram})
        names->clear();
    for (size_t i = 0; i < entries.size(); ++i) {
        const DesktopEntry& entry = entries[i];
        const int position = static_cast<int>(i);
        addName(m_byId, entry.id, position, entries);
        addName(m_byWindowClass, entry.windowClass, position, entries);
        if (entry.id.contains(QLatin1Char('.')))
            addName(m_byLastSegment, entry.id.section(QLatin1Char('.'), -1), position, entries);
        addName(m_byProgram, programNameOfCommand(entry.command), position, entries);
    }
}

const DesktopEntry* ApplicationIdentity::lookUp(const QHash<QString, int>& names, const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    const int position = names.value(name.toLower(), ambiguous);
    return position == ambiguous ? nullptr : &m_entries.entries()[static_cast<size_t>(position)];
}

const DesktopEntry* ApplicationIdentity::findEntry(const WindowClues& clues,
                                                   const ProcessFacts& facts) const {
    // The instance comes before the class: a browser's web applications differ in it alone.
    const QStringList names = {clues.applicationId, clues.instanceName, clues.className};
    if (const DesktopEntry* entry = lookUp(m_byId, clues.applicationId))
        return entry;
    for (const QHash<QString, int>* index : {&m_byWindowClass, &m_byId, &m_byLastSegment}) {
        for (const QString& name : names) {
            if (const DesktopEntry* entry = lookUp(*index, name))
                return entry;
        }
    }
    if (const DesktopEntry* entry = lookUp(m_byProgram, facts.programName))
        return entry;
    if (facts.hasTerminal)
        return nullptr;
    for (const QString& id : applicationIdsOfUnit(facts.applicationUnit)) {
        if (const DesktopEntry* entry = lookUp(m_byId, id))
            return entry;
    }
    return nullptr;
}

RunningApplication ApplicationIdentity::identify(const WindowClues& clues) const {
    updateIndex();
    const ProcessFacts facts = readProcessFacts(clues.processId, m_processRoot);

    RunningApplication application;
    application.processId = clues.processId;
    const DesktopEntry* entry =
        facts.sandboxId.isEmpty() ? findEntry(clues, facts) : lookUp(m_byId, facts.sandboxId);
    if (entry) {
        application.bundleIdentifier = bundleIdentifierForDesktopId(entry->id);
        application.localizedName = entry->name;
        application.iconName = entry->iconName;
        application.declaredCategory = declaredCategoryForCategories(entry->categories);
        return application;
    }

    QString id = !facts.sandboxId.isEmpty() ? facts.sandboxId : clues.applicationId;
    QString name = clues.className;
    if (isGenericClass(name) && !facts.programName.isEmpty())
        name = facts.programName;
    if (id.isEmpty())
        id = name.toLower();
    application.bundleIdentifier = bundleIdentifierForDesktopId(id);
    application.localizedName = name.isEmpty() ? id.section(QLatin1Char('.'), -1) : name;
    return application;
}

} // namespace norvin
