#include "distraction/UsageCategory.h"

#include <QTest>

using namespace norvin;

class tst_UsageCategory final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void resolving_data();
    void resolving();
};

void tst_UsageCategory::resolving_data() {
    QTest::addColumn<QString>("bundleID");
    QTest::addColumn<QString>("declared"); // empty for none
    QTest::addColumn<QString>("category");
    const auto row = [](const char* name, const char* bundleID, const char* declared, const char* category) {
        QTest::newRow(name) << QString::fromLatin1(bundleID) << QString::fromLatin1(declared)
                            << QString::fromLatin1(category);
    };
    row("known by name before declared", "com.microsoft.VSCode", "public.app-category.games",
        "category_development");
    row("browser before declared", "org.mozilla.firefox", "public.app-category.games", "category_navigation");
    row("declared before guessed", "com.example.xcode", "public.app-category.games",
        "category_entertainment");
    row("declared but not in the table", "com.example.xcode", "public.app-category.weather",
        "category_other");
    row("social networking is communication", "a.b", "public.app-category.social-networking",
        "category_communication");
    row("photography is design", "a.b", "public.app-category.photography", "category_design");
    row("utilities are system", "a.b", "public.app-category.utilities", "category_system");
    row("loose substring", "com.example.wordcount", "", "category_productivity");
    row("upper case", "COM.EXAMPLE.VLC", "", "category_entertainment");
    row("first category wins", "com.notion.teams", "", "category_communication");
    row("development before all", "com.slack.fork", "", "category_development");
    row("nothing known", "com.example.abc", "", "category_other");
    row("unknown application", "unknown", "", "category_other");
}

void tst_UsageCategory::resolving() {
    QFETCH(QString, bundleID);
    QFETCH(QString, declared);
    QTEST(resolveCategory(bundleID, declared.isEmpty() ? std::nullopt : std::optional(declared)), "category");
}

QTEST_APPLESS_MAIN(tst_UsageCategory)
#include "tst_UsageCategory.moc"
