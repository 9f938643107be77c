// BlockSignal on real widget trees: every widget silenced for the blocker's
// lifetime, earlier states restored, widgets added meanwhile left enabled.
#include "BlockSignal.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

namespace {

/// root > panel > spin, and root > check.
struct Tree
{
    Tree() : root(new QWidget)
    {
        auto* layout = new QVBoxLayout(root.get());
        panel = new QWidget(root.get());
        spin = new QSpinBox(panel);
        check = new QCheckBox(root.get());
        layout->addWidget(panel);
        layout->addWidget(check);
    }

    QList<QWidget*> All() const { return { root.get(), panel, spin, check }; }

    std::unique_ptr<QWidget> root;
    QWidget* panel = nullptr;
    QSpinBox* spin = nullptr;
    QCheckBox* check = nullptr;
};

} // namespace

class tst_BlockSignal : public QObject
{
    Q_OBJECT

private slots:
    void nullWidgetIsNoOp();
    void silencesWholeTree();
    void alreadyBlockedStaysBlocked();
    void childAddedMeanwhileEndsEnabled_data();
    void childAddedMeanwhileEndsEnabled();
    void nestedBlockersRestoreInReverse();
    void childDeletedMeanwhile();
    void leavesNonWidgetChildrenAlone();
};

void tst_BlockSignal::nullWidgetIsNoOp()
{
    Tree tree;
    tree.check->blockSignals(true);
    {
        BlockSignal blocker(nullptr);
        QVERIFY(!tree.spin->signalsBlocked());
        QVERIFY(tree.check->signalsBlocked());
    }
    QVERIFY(!tree.spin->signalsBlocked());
    QVERIFY(tree.check->signalsBlocked());
}

void tst_BlockSignal::silencesWholeTree()
{
    Tree tree;
    QSignalSpy spinChanged(tree.spin, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy checkToggled(tree.check, &QCheckBox::toggled);
    {
        BlockSignal blocker(tree.root.get());
        for (QWidget* w : tree.All())
            QVERIFY2(
                w->signalsBlocked(), qPrintable(QString::fromLatin1(w->metaObject()->className())));
        tree.spin->setValue(7);
        tree.check->setChecked(true);
        QCOMPARE(spinChanged.count(), 0);
        QCOMPARE(checkToggled.count(), 0);
    }
    for (QWidget* w : tree.All())
        QVERIFY(!w->signalsBlocked());
    tree.spin->setValue(8);
    QCOMPARE(spinChanged.count(), 1);
    QCOMPARE(tree.spin->value(), 8);
}

void tst_BlockSignal::alreadyBlockedStaysBlocked()
{
    Tree tree;
    tree.spin->blockSignals(true);
    tree.root->blockSignals(true);
    {
        BlockSignal blocker(tree.panel);
        QVERIFY(tree.panel->signalsBlocked());
        QVERIFY(tree.spin->signalsBlocked());
        // Outside the silenced tree.
        QVERIFY(!tree.check->signalsBlocked());
    }
    QVERIFY(tree.spin->signalsBlocked());
    QVERIFY(!tree.panel->signalsBlocked());
    QVERIFY(tree.root->signalsBlocked());
    QVERIFY(!tree.check->signalsBlocked());
}

void tst_BlockSignal::childAddedMeanwhileEndsEnabled_data()
{
    QTest::addColumn<bool>("createdBlocked");
    QTest::newRow("created enabled") << false;
    QTest::newRow("created blocked") << true;
}

void tst_BlockSignal::childAddedMeanwhileEndsEnabled()
{
    QFETCH(bool, createdBlocked);
    Tree tree;
    QSpinBox* late = nullptr;
    {
        BlockSignal blocker(tree.root.get());
        late = new QSpinBox(tree.panel);
        late->blockSignals(createdBlocked);
    }
    QVERIFY(!late->signalsBlocked());
    QSignalSpy changed(late, QOverload<int>::of(&QSpinBox::valueChanged));
    late->setValue(3);
    QCOMPARE(changed.count(), 1);
}

void tst_BlockSignal::nestedBlockersRestoreInReverse()
{
    Tree tree;
    tree.check->blockSignals(true);
    {
        BlockSignal outer(tree.root.get());
        {
            BlockSignal inner(tree.root.get());
            for (QWidget* w : tree.All())
                QVERIFY(w->signalsBlocked());
        }
        // The inner blocker found every widget blocked and leaves them so.
        for (QWidget* w : tree.All())
            QVERIFY(w->signalsBlocked());
    }
    QVERIFY(!tree.root->signalsBlocked());
    QVERIFY(!tree.panel->signalsBlocked());
    QVERIFY(!tree.spin->signalsBlocked());
    QVERIFY(tree.check->signalsBlocked());
}

void tst_BlockSignal::childDeletedMeanwhile()
{
    Tree tree;
    {
        BlockSignal blocker(tree.root.get());
        delete tree.spin;
        tree.spin = nullptr;
    }
    QVERIFY(!tree.root->signalsBlocked());
    QVERIFY(!tree.panel->signalsBlocked());
    QVERIFY(!tree.check->signalsBlocked());
}

void tst_BlockSignal::leavesNonWidgetChildrenAlone()
{
    Tree tree;
    auto* timer = new QTimer(tree.panel);
    {
        BlockSignal blocker(tree.root.get());
        QVERIFY(tree.panel->signalsBlocked());
        QVERIFY(!timer->signalsBlocked());
    }
    QVERIFY(!timer->signalsBlocked());
}

QTEST_MAIN(tst_BlockSignal)
#include "tst_BlockSignal.moc"
