#include "distraction/ApplicationListModel.h"
#include "tests/support/FocusRig.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace norvin;

class tst_ApplicationListModel final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void joinsInstalledRunningAndListed();
    void searchIgnoresCaseAndAccents();
    void anApplicationIsOnOneListAtMost();
    void whatIsListedElsewhereAppears();
};

namespace {

QStringList names(const ApplicationListModel& model) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row).data(ApplicationListModel::NameRole).toString());
    return result;
}

void install(FocusRig& rig, const char* id, const char* name) {
    rig.catalog.install({QString::fromUtf8(id), QString::fromUtf8(name), {}, {}});
}

} // namespace

void tst_ApplicationListModel::joinsInstalledRunningAndListed() {
    FocusRig rig;
    install(rig, "org.example.Editor", "Editor");
    install(rig, ownBundleIdentifier, "Norvin Focus");
    rig.workspace.setRunningApplications({rig.editor, rig.terminal, rig.own, RunningApplication{}});
    rig.blocker.addAppToBlocklist(QStringLiteral("org.gone.App"));
    ApplicationListModel model(rig.catalog, rig.workspace, rig.blocker);
    const QAbstractItemModelTester tester(&model);
    model.refresh();
    QCOMPARE(names(model), QStringList({QStringLiteral("Editor"), QStringLiteral("org.gone.App"),
                                        QStringLiteral("Terminal")}));
    QCOMPARE(model.index(0).data(ApplicationListModel::IsRunningRole).toBool(), true);
    QCOMPARE(model.index(1).data(ApplicationListModel::ListRole).toString(), QStringLiteral("blocked"));
    QCOMPARE(model.index(1).data(ApplicationListModel::IsRunningRole).toBool(), false);
}

void tst_ApplicationListModel::searchIgnoresCaseAndAccents() {
    FocusRig rig;
    install(rig, "org.example.cafe", "Café Élan");
    install(rig, "org.example.Editor", "Editor");
    ApplicationListModel model(rig.catalog, rig.workspace, rig.blocker);
    model.refresh();
    model.setFilterText(QStringLiteral("cafe e"));
    QCOMPARE(names(model), QStringList{QStringLiteral("Café Élan")});
    model.setFilterText(QStringLiteral("ÉDIT"));
    QCOMPARE(names(model), QStringList{QStringLiteral("Editor")});
    model.setFilterText(QStringLiteral("nothing like it"));
    QCOMPARE(model.count(), 0);
}

void tst_ApplicationListModel::anApplicationIsOnOneListAtMost() {
    FocusRig rig;
    install(rig, "org.example.Editor", "Editor");
    ApplicationListModel model(rig.catalog, rig.workspace, rig.blocker);
    model.refresh();
    const QString editor = QStringLiteral("org.example.Editor");
    model.setList(editor, QStringLiteral("blocked"));
    model.setList(editor, QStringLiteral("whitelisted"));
    QVERIFY(!rig.blocker.blockedAppBundleIDs().contains(editor));
    QCOMPARE(model.index(0).data(ApplicationListModel::ListRole).toString(), QStringLiteral("whitelisted"));
    model.setList(editor, QStringLiteral("none"));
    QCOMPARE(model.blockedCount() + model.whitelistedCount(), 0);
}

void tst_ApplicationListModel::whatIsListedElsewhereAppears() {
    FocusRig rig;
    install(rig, "org.example.Editor", "Editor");
    ApplicationListModel model(rig.catalog, rig.workspace, rig.blocker);
    model.refresh();
    rig.blocker.addAppToBlocklist(QStringLiteral("org.example.Editor"));
    rig.blocker.addAppToBlocklist(QStringLiteral("org.gone.App"));
    QCOMPARE(names(model), QStringList({QStringLiteral("Editor"), QStringLiteral("org.gone.App")}));
}

QTEST_GUILESS_MAIN(tst_ApplicationListModel)
#include "tst_ApplicationListModel.moc"
