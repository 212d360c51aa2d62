#include "tests/ui/UiRig.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace norvin;

/// The block-list screen with the keyboard and the pointer.
class BlockListsViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<UiRig>();
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->focus.catalog.install({firefox, QStringLiteral("Firefox"), QString(), {}});
        rig->focus.catalog.install({QStringLiteral("org.example.Sheets"), QStringLiteral("Sheets"), QString(),
                                    QStringLiteral("public.app-category.productivity")});
        rig->show();
    }
    void cleanup() { rig.reset(); }

    void sitesAreTypedPastedAndTakenBackByKeyboard();
    void sitesAreMovedAndRemovedWithThePointer();
    void aBrowserOffTheWhitelistIsPutOnIt();
    void theTestFieldAnswersWhileOneTypes();
    void suggestionsAreChosenByKeyboard();
    void anImportIsAskedAboutAndARefusalExplained();

private:
    [[nodiscard]] QString focusName() const {
        return rig->window()->activeFocusItem() ? rig->window()->activeFocusItem()->objectName() : QString();
    }
    /// Whether the keyboard is in the item, or in a row of the list that it is.
    [[nodiscard]] bool hasKeyboard(const char* name) const {
        const QQuickItem* item = rig->item(name);
        return item && item->hasActiveFocus();
    }
    void tabTo(const char* name) {
        for (int presses = 0; presses < 40 && !hasKeyboard(name); ++presses)
            rig->press(Qt::Key_Tab);
        QVERIFY2(hasKeyboard(name), qPrintable(focusName()));
    }
    void openSites() {
        rig->focus.blocker.addAppToWhitelist(QStringLiteral("org.example.Editor")); // no suggestions
        rig->showPage(UiRig::Page::blockLists);
        QTRY_VERIFY(hasKeyboard("applicationSearch"));
        rig->press(Qt::Key_Tab, Qt::ShiftModifier);
        QTRY_VERIFY(hasKeyboard("listPanes"));
        rig->press(Qt::Key_Right);
        tabTo("browserList");
        QCOMPARE(rig->blockLists.browser(), firefox);
    }
    void click(QQuickItem* item) {
        QTest::mouseClick(rig->window(), Qt::LeftButton, {},
                          item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    }
    [[nodiscard]] QQuickItem* visibleButton(const QString& text) const {
        for (QQuickItem* item : rig->visibleItems()) {
            if (item->inherits("QQuickAbstractButton") && item->isEnabled() &&
                item->property("text").toString() == text)
                return item;
        }
        return nullptr;
    }
    [[nodiscard]] QString text(const char* name) const {
        return rig->item(name)->property("text").toString();
    }
    [[nodiscard]] QSet<QString> blocked() const { return rig->focus.blocker.getBlockedSites(firefox); }
    [[nodiscard]] QSet<QString> whitelisted() const {
        return rig->focus.blocker.getWhitelistedSites(firefox);
    }

    const QString firefox = QStringLiteral("org.mozilla.firefox");
    const QString a = QStringLiteral("a.org");
    const QString b = QStringLiteral("b.org");
    std::unique_ptr<UiRig> rig;
};

void BlockListsViewTest::sitesAreTypedPastedAndTakenBackByKeyboard() {
    openSites();
    tabTo("whitelistedField");
    rig->type(QStringLiteral("https://www.a.org/page"));
    rig->press(Qt::Key_Return);
    QCOMPARE(whitelisted(), QSet<QString>{a});
    QVERIFY(text("whitelistedField").isEmpty());

    tabTo("blockedField");
    QGuiApplication::clipboard()->setText(QStringLiteral("a.org\nb.org,\nnot%one\n"));
    rig->press(Qt::Key_V, Qt::ControlModifier);
    rig->press(Qt::Key_Return);
    QCOMPARE(blocked(), QSet<QString>({a, b}));
    QCOMPARE(text("blockedField"), QStringLiteral("not%one"));
    QVERIFY(text("blockedReport").contains(QStringLiteral("not%one")));
    rig->press(Qt::Key_Escape);
    QVERIFY(text("blockedField").isEmpty());
    QVERIFY(!rig->item("blockedReport")->isVisible());

    // The list shows what is typed; a word that is there already is said to be.
    rig->type(QStringLiteral("b.o"));
    QCOMPARE(rig->item("blockedSites")->property("count").toInt(), 1);
    rig->type(QStringLiteral("rg"));
    rig->press(Qt::Key_Return);
    QVERIFY(text("blockedReport").contains(b));
    QCOMPARE(rig->item("blockedSites")->property("count").toInt(), 2);

    rig->press(Qt::Key_Down);
    QTRY_VERIFY(hasKeyboard("blockedSites"));
    rig->press(Qt::Key_Delete);
    QCOMPARE(blocked(), QSet<QString>{b});
    QVERIFY(hasKeyboard("blockedSites"));
    rig->press(Qt::Key_Left, Qt::AltModifier);
    QVERIFY(blocked().isEmpty());
    QCOMPARE(whitelisted(), QSet<QString>({a, b}));
    QVERIFY(hasKeyboard("blockedField")); // the list is empty

    rig->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(blocked(), QSet<QString>{b});
    rig->blockLists.removeSite(QStringLiteral("blocked"), b);
    tabTo("undoButton");
    rig->press(Qt::Key_Return);
    QCOMPARE(blocked(), QSet<QString>{b});
    // The bar has nothing to take back any more; the keys go on.
    QVERIFY(rig->window()->activeFocusItem()->isVisible());
    rig->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(blocked(), QSet<QString>({a, b}));
}

void BlockListsViewTest::sitesAreMovedAndRemovedWithThePointer() {
    openSites();
    rig->blockLists.addSites(QStringLiteral("blocked"), QStringLiteral("a.org b.org"));
    QTRY_COMPARE(rig->item("blockedSites")->property("contentHeight").toReal(), 72.0);
    QTest::mouseClick(rig->window(), Qt::LeftButton, {},
                      rig->item("blockedSites")->mapToScene(QPointF(20, 18)).toPoint());
    QTRY_VERIFY(visibleButton(qtTrId("site_move").arg(a)));
    click(visibleButton(qtTrId("site_move").arg(a)));
    QCOMPARE(whitelisted(), QSet<QString>{a});
    QTRY_VERIFY(visibleButton(qtTrId("site_remove").arg(b)));
    click(visibleButton(qtTrId("site_remove").arg(b)));
    QVERIFY(blocked().isEmpty());
    QTRY_VERIFY(rig->item("undoButton")->isVisible());
    QVERIFY(text("notice").contains(b));
    click(rig->item("undoButton"));
    QCOMPARE(blocked(), QSet<QString>{b});
    QVERIFY(!rig->item("undoButton")->isVisible());
}

void BlockListsViewTest::aBrowserOffTheWhitelistIsPutOnIt() {
    openSites();
    tabTo("whitelistBrowser");
    rig->press(Qt::Key_Return);
    QVERIFY(rig->focus.blocker.whitelistedAppBundleIDs().contains(firefox));
    QTRY_VERIFY(!rig->item("whitelistBrowser")->isVisible());
    QVERIFY(rig->window()->activeFocusItem()->isVisible());
}

void BlockListsViewTest::theTestFieldAnswersWhileOneTypes() {
    openSites();
    rig->blockLists.whitelistBrowser();
    rig->blockLists.addSites(QStringLiteral("blocked"), QStringLiteral("example.org"));
    tabTo("siteTest");
    rig->type(QStringLiteral("news.example.org"));
    QCOMPARE(text("testOutcome"), qtTrId("verdict_blocked_word"));
    QVERIFY(text("testReason").contains(QStringLiteral("example.org")));
    rig->blockLists.undo();
    QCOMPARE(text("testOutcome"), qtTrId("verdict_legitimate_word"));
    rig->press(Qt::Key_Escape);
    QVERIFY(text("siteTest").isEmpty());
    rig->type(QStringLiteral("x"));
    QCOMPARE(rig->blockLists.testText(), QStringLiteral("x"));
}

void BlockListsViewTest::suggestionsAreChosenByKeyboard() {
    rig->showPage(UiRig::Page::blockLists);
    QTRY_VERIFY(hasKeyboard("suggestionList"));
    QVERIFY(!rig->item("addSuggestions")->isEnabled());
    rig->press(Qt::Key_Down); // the heading over the browsers, then Firefox
    rig->press(Qt::Key_Space);
    QVERIFY(rig->focus.blocker.lists().isEmpty());
    tabTo("addSuggestions");
    rig->press(Qt::Key_Return);
    QCOMPARE(rig->focus.blocker.whitelistedAppBundleIDs(), QSet<QString>{firefox});
    QTRY_VERIFY(hasKeyboard("applicationSearch"));
    QVERIFY(!rig->item("suggestionList")->isVisible());
}

void BlockListsViewTest::anImportIsAskedAboutAndARefusalExplained() {
    openSites();
    QTemporaryDir folder;
    const QUrl file = QUrl::fromLocalFile(folder.filePath(QStringLiteral("lists.json")));
    rig->blockLists.addSites(QStringLiteral("blocked"), a);
    rig->blockLists.exportLists(file);
    rig->blockLists.undo();
    rig->blockLists.addSites(QStringLiteral("blocked"), b);

    rig->blockLists.examineImport(file);
    QTRY_VERIFY(hasKeyboard("importCancel"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!rig->item("importCancel"));
    QCOMPARE(blocked(), QSet<QString>{b});
    QCOMPARE(rig->blockLists.importState(), QStringLiteral("none"));

    rig->blockLists.examineImport(file);
    QTRY_VERIFY(hasKeyboard("importCancel"));
    tabTo("importReplace");
    rig->press(Qt::Key_Return);
    QCOMPARE(blocked(), QSet<QString>{a});
    QTRY_VERIFY(!rig->item("importCancel"));

    rig->blockLists.examineImport(QUrl::fromLocalFile(folder.filePath(QStringLiteral("missing.json"))));
    QTRY_VERIFY(hasKeyboard("importCancel"));
    QCOMPARE(text("importText"), rig->blockLists.importProblem());
    QVERIFY(!rig->item("importAdd")->isVisible());
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(!rig->item("importCancel"));
    QCOMPARE(blocked(), QSet<QString>{a});
}

QTEST_MAIN(BlockListsViewTest)
#include "tst_BlockListsView.moc"
