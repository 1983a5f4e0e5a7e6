#include "orvane/extender/OrvShell.h"

#include <QTest>

namespace {

class TestShell : public OrvShell {
public:
    void addDockWidget(QDockWidget*, int) override { }
    void removeDockWidget(QDockWidget*) override { }
    void announceExtension(OrvExtension*, int) override { }
    void withdrawExtension(OrvExtension*) override { }
    void addToolBar(QToolBar*, int) override { }
    void removeToolBar(QToolBar*) override { }
};

} // namespace

class TestOrvShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theShellIsTheOneThatLives()
    {
        QVERIFY(OrvShell::getInstance() == nullptr);
        {
            TestShell shell;
            QCOMPARE(OrvShell::getInstance(), &shell);
        }
        QVERIFY(OrvShell::getInstance() == nullptr);
        TestShell next;
        QCOMPARE(OrvShell::getInstance(), &next);
    }
};

QTEST_APPLESS_MAIN(TestOrvShell)
#include "tst_OrvShell.moc"
