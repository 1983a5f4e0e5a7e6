#include "orvane/app/structure/AddNodeDialog.h"
#include "orvane/extender/OrvPluginsManager.h"

#include "meridane/base/values/VbName.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

// A class of nodes that comes with a plug-in is offered where nodes are added.
class TestNewNode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theDialogOffersTheClassOfAPlugin()
    {
        OrvPluginsManager manager;
        QCOMPARE(manager.loadPlugin(QStringLiteral(SAMPLE_PLUGIN)).value_or(QString()), QString());
        auto* const dialog = new AddNodeDialog(QStringLiteral("Here."), nullptr); // deletes itself
        QList<NxType> chosen;
        connect(dialog, &AddNodeDialog::chosen, this, [&](NxType type) { chosen.append(type); });
        dialog->open();
        auto* const filter = dialog->findChild<QLineEdit*>();
        QVERIFY(filter != nullptr);
        QTest::keyClicks(filter, QStringLiteral("Compass"));
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first(), NxType::fromName("Compass"));
    }
};

QTEST_MAIN(TestNewNode)
#include "tst_NewNode.moc"
