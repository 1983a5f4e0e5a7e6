#include "app/AppScenes.h"

#include "orvane/app/tree/HiddenNodes.h"

#include <QSignalSpy>
#include <QTest>

/// The nodes that are hidden and isolated for looking.
class TestHiddenNodes : public QObject {
    Q_OBJECT

private:
    using Nodes = std::vector<NxNode*>;

    [[nodiscard]] NxNode* robot(int child = -1)
    {
        auto* const group = dynamic_cast<NxGroup*>(m_scene->getChild(0));
        return child < 0 ? group : group->getChild(child);
    }
    [[nodiscard]] NxNode* sun() { return m_scene->getChild(1); }

private Q_SLOTS:
    void init()
    {
        m_scene = AppScenes::robot();
        m_hidden = std::make_unique<HiddenNodes>();
    }

    void nodesAreHiddenWithWhatIsBelow()
    {
        const QSignalSpy changed(m_hidden.get(), &HiddenNodes::changed);
        QVERIFY(m_hidden->isEmpty());
        m_hidden->hide(Nodes{robot()});
        m_hidden->hide(Nodes{robot(), robot(1)});
        QCOMPARE(m_hidden->hidden(), (Nodes{robot(), robot(1)}));
        QVERIFY(!m_hidden->isShown(Nodes{robot(), robot(0)}));
        QVERIFY(m_hidden->isShown(Nodes{sun()}));
        QCOMPARE(changed.size(), 2);
        m_hidden->hide(Nodes{robot()});
        QCOMPARE(changed.size(), 2);
        m_hidden->show(Nodes{robot()});
        QVERIFY(m_hidden->isShown(Nodes{robot(), robot(0)}));
        QVERIFY(!m_hidden->isShown(Nodes{robot(), robot(1)}));
        m_hidden->showAll();
        QVERIFY(m_hidden->isEmpty());
        QVERIFY(m_hidden->visibility().showsAll());
        QCOMPARE(changed.size(), 4);
        m_hidden->showAll();
        QCOMPARE(changed.size(), 4);
    }

    void nodesAreIsolated()
    {
        m_hidden->hide(Nodes{robot(0)});
        m_hidden->isolate(Nodes{robot(0), robot(0), robot(1)});
        QCOMPARE(m_hidden->isolated(), (Nodes{robot(0), robot(1)}));
        QVERIFY(m_hidden->hidden().empty()); // it is meant to be seen
        QVERIFY(m_hidden->isShown(Nodes{robot(), robot(0)}));
        QVERIFY(!m_hidden->isShown(Nodes{robot(), robot(2)}));
        QVERIFY(!m_hidden->isShown(Nodes{sun()}));
        m_hidden->isolate(Nodes{sun()});
        QVERIFY(m_hidden->isShown(Nodes{sun()}));
        QVERIFY(!m_hidden->isShown(Nodes{robot(), robot(0)}));
    }

    void nodesThatAreRemovedStayHidden()
    {
        auto* const group = dynamic_cast<NxGroup*>(robot());
        const NxRef<NxNode> arm(robot(0));
        m_hidden->hide(Nodes{arm.get()});
        group->removeChild(0);
        QVERIFY(!m_hidden->isEmpty());
        group->insertChild(arm.get(), 0);
        QVERIFY(!m_hidden->isShown(Nodes{robot(), robot(0)}));
    }

private:
    NxRef<NxGroup> m_scene;
    std::unique_ptr<HiddenNodes> m_hidden;
};

QTEST_MAIN(TestHiddenNodes)
#include "tst_HiddenNodes.moc"
