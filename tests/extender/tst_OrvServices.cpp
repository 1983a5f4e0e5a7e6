#include "base/HandlerGuard.h"
#include "extender/Recording.h"
#include "extender/TestCommand.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestOrvServices : public QObject {
    Q_OBJECT

    QStringList m_calls;

    TestCommand* newCommand(const char* name) { return new TestCommand(QString::fromLatin1(name), m_calls); }

    /// Notes each selection signal: "node name" or "field name", with "-" for null.
    void noteSelection(OrvServices& services)
    {
        connect(&services, &OrvServices::selectedNodeChanged, this, [this](const NxFieldContainer* node) {
            m_calls.append(u"node "_s + (node != nullptr ? orvane::toQString(node->getName()) : u"-"_s));
        });
        connect(&services, &OrvServices::selectedFieldChanged, this, [this](const NxField* field) {
            m_calls.append(
                u"field "_s + (field != nullptr ? orvane::toQString(field->getContainer()->getName()) : u"-"_s));
        });
    }

    static NxRef<NxPointLight> newLight(const char* name)
    {
        NxRef<NxPointLight> light(new NxPointLight);
        light->setName(name);
        return light;
    }

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void theServicesAreTheOnesThatLive()
    {
        QVERIFY(OrvServices::getInstance() == nullptr);
        {
            OrvServices services;
            QCOMPARE(OrvServices::getInstance(), &services);
        }
        QVERIFY(OrvServices::getInstance() == nullptr);
    }

    void selectingEmitsAtOnceEachTime()
    {
        OrvServices services;
        noteSelection(services);
        const auto a = newLight("a");
        services.selectNode(a.get());
        QCOMPARE(taken(m_calls), QStringList{u"node a"_s});
        QCOMPARE(services.getSelectedNode(), a.get());
        services.selectNode(a.get());
        QCOMPARE(taken(m_calls), QStringList{u"node a"_s});
        services.selectField(&a->intensity);
        services.selectField(&a->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"field a"_s, u"field a"_s}));
        QCOMPARE(services.getSelectedField(), &a->intensity);
        services.selectField(nullptr);
        services.selectNode(nullptr);
        QCOMPARE(taken(m_calls), (QStringList{u"field -"_s, u"node -"_s}));
        QVERIFY(services.getSelectedNode() == nullptr);
        QVERIFY(services.getSelectedField() == nullptr);
    }

    void anotherNodeTakesTheFieldAwayFirst()
    {
        OrvServices services;
        const auto a = newLight("a");
        const auto b = newLight("b");
        services.selectNode(a.get());
        services.selectField(&a->intensity);
        noteSelection(services);
        services.selectNode(a.get());
        QCOMPARE(taken(m_calls), QStringList{u"node a"_s});
        services.selectNode(b.get());
        QCOMPARE(taken(m_calls), (QStringList{u"field -"_s, u"node b"_s}));
        QVERIFY(services.getSelectedField() == nullptr);
        services.selectNode(a.get());
        QCOMPARE(taken(m_calls), QStringList{u"node a"_s});
    }

    void aSlotSeesTheNewSelection()
    {
        OrvServices services;
        const auto a = newLight("a");
        const NxFieldContainer* seen = nullptr;
        connect(&services, &OrvServices::selectedNodeChanged, this, [&] { seen = services.getSelectedNode(); });
        services.selectNode(a.get());
        QCOMPARE(seen, a.get());
    }

    void theSelectionIsAnnouncedAgainNodeFirst()
    {
        OrvServices services;
        const auto a = newLight("a");
        services.selectNode(a.get());
        services.selectField(&a->intensity);
        noteSelection(services);
        services.announceSelection();
        QCOMPARE(taken(m_calls), (QStringList{u"node a"_s, u"field a"_s}));
    }

    void nodeAndFieldAreSelectedTogether()
    {
        OrvServices services;
        const auto a = newLight("a");
        const auto b = newLight("b");
        noteSelection(services);
        services.select(b.get(), &b->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"node b"_s, u"field b"_s}));
        QCOMPARE(services.getSelectedNode(), b.get());
        QCOMPARE(services.getSelectedField(), &b->intensity);
        services.select(a.get(), &a->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"field -"_s, u"node a"_s, u"field a"_s}));
        services.select(a.get(), nullptr);
        QCOMPARE(taken(m_calls), (QStringList{u"node a"_s, u"field -"_s}));
    }

    void nothingComesBetweenANodeAndItsField()
    {
        OrvServices services;
        const auto a = newLight("a");
        const auto b = newLight("b");
        connect(&services, &OrvServices::selectedNodeChanged, this, [&](const NxFieldContainer* node) {
            if (node == a.get())
                services.select(b.get(), &b->intensity);
        });
        noteSelection(services);
        services.select(a.get(), &a->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"node a"_s, u"field a"_s, u"field -"_s, u"node b"_s, u"field b"_s}));
        QCOMPARE(services.getSelectedField(), &b->intensity);
    }

    void aSelectionMadeByASlotWaitsUntilAllSlotsWereCalled()
    {
        OrvServices services;
        const auto a = newLight("a");
        const auto b = newLight("b");
        connect(&services, &OrvServices::selectedFieldChanged, this, [&](const NxField* field) {
            if (field == &a->intensity)
                services.selectField(&b->intensity);
            else if (field == &b->intensity)
                services.selectNode(b.get());
        });
        noteSelection(services);
        QStringList disagreements;
        connect(&services, &OrvServices::selectedNodeChanged, this, [&](const NxFieldContainer* node) {
            if (services.getSelectedNode() != node)
                disagreements.append(m_calls.last());
        });
        connect(&services, &OrvServices::selectedFieldChanged, this, [&](const NxField* field) {
            if (services.getSelectedField() != field)
                disagreements.append(m_calls.last());
        });
        services.selectField(&a->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"field a"_s, u"field b"_s, u"field -"_s, u"node b"_s}));
        QCOMPARE(disagreements, QStringList());
        QVERIFY(services.getSelectedField() == nullptr);
    }

    void slotsThatSelectWithoutEndAreStopped()
    {
        OrvServices services;
        const auto a = newLight("a");
        const auto b = newLight("b");
        TextRecorder errors;
        const HandlerGuard<NxDebugError> guard(&TextRecorder::record, &errors);
        const NxFieldContainer* announced = nullptr;
        QObject plugins;
        connect(&services, &OrvServices::selectedNodeChanged, &plugins,
            [&](const NxFieldContainer* node) { services.selectNode(node == a.get() ? b.get() : a.get()); });
        connect(&services, &OrvServices::selectedNodeChanged, this,
            [&](const NxFieldContainer* node) { announced = node; });
        services.selectNode(a.get());
        QCOMPARE(errors.texts().size(), std::size_t{1});
        QVERIFY(announced != nullptr);
        QCOMPARE(services.getSelectedNode(), announced);
        services.disconnect(&plugins);
        services.selectNode(a.get());
        QCOMPARE(services.getSelectedNode(), a.get());
        QCOMPARE(errors.texts().size(), std::size_t{1});
    }

    void anAnnouncementAskedForByASlotComesAfterThePresentOne()
    {
        OrvServices services;
        const auto a = newLight("a");
        bool asked = false;
        connect(&services, &OrvServices::selectedNodeChanged, this, [&] {
            if (!std::exchange(asked, true))
                services.announceSelection();
        });
        noteSelection(services);
        services.select(a.get(), &a->intensity);
        QCOMPARE(taken(m_calls), (QStringList{u"node a"_s, u"field a"_s, u"node a"_s, u"field a"_s}));
    }

    void whatASlotSelectsIsHeldUntilItsTurn()
    {
        OrvServices services;
        const auto a = newLight("a");
        auto b = newLight("b");
        auto lone = std::make_unique<NxSFFloat>(nullptr, "lone", 1.0F);
        connect(&services, &OrvServices::selectedNodeChanged, this, [&](const NxFieldContainer* node) {
            if (node != a.get())
                return;
            services.selectField(lone.get());
            services.selectField(&b->intensity);
            lone.reset();
            b = {};
        });
        noteSelection(services);
        services.selectNode(a.get());
        QCOMPARE(taken(m_calls), (QStringList{u"node a"_s, u"field -"_s, u"field b"_s}));
        QVERIFY(services.getSelectedField() != nullptr);
        QCOMPARE(services.getSelectedField()->getContainer()->getRefCount(), 1);
    }

    void theSelectedNodeAndTheFieldsOwnerAreHeldAlive()
    {
        OrvServices services;
        auto node = newLight("node");
        auto owner = newLight("owner");
        services.selectNode(node.get());
        services.selectField(&owner->intensity);
        QCOMPARE(node->getRefCount(), 2);
        QCOMPARE(owner->getRefCount(), 2);
        services.selectField(nullptr);
        QCOMPARE(owner->getRefCount(), 1);
        services.selectNode(nullptr);
        QCOMPARE(node->getRefCount(), 1);
    }

    void aNodeThatTheSceneDropsStaysSelected()
    {
        OrvServices services;
        NxPointLight* light = newLight("a").get();
        services.selectNode(nullptr);
        {
            const auto scene = newLight("b");
            light = scene.get();
            services.selectNode(light);
        }
        QCOMPARE(light->getRefCount(), 1);
        QCOMPARE(services.getSelectedNode(), light);
    }

    void aSelectedFieldThatStandsAloneMayDie()
    {
        OrvServices services;
        {
            NxSFFloat field(nullptr, "field", 1);
            services.selectField(&field);
            field.setValue(2);
            QCOMPARE(services.getSelectedField(), &field);
        }
        QVERIFY(services.getSelectedField() == nullptr);
        services.pushCommand(newCommand("a"));
        QVERIFY(services.canUndo());
    }

    void aCommandHoldsTheSelectedNodeBeyondTheSelection()
    {
        OrvServices services;
        const auto light = newLight("a");
        services.selectNode(light.get());
        services.selectField(&light->intensity);
        services.pushCommand(newCommand("a"));
        services.selectNode(nullptr);
        QCOMPARE(light->getRefCount(), 2);
        services.clearHistory();
        QCOMPARE(light->getRefCount(), 1);
    }

    void aNullCommandIsIgnored()
    {
        OrvServices services;
        services.pushCommand(nullptr);
        QVERIFY(!services.canUndo());
        QVERIFY(services.isClean());
    }

    void aCommandIsExecutedBeforePushReturnsAndOwned()
    {
        {
            OrvServices services;
            services.pushCommand(newCommand("a"));
            QCOMPARE(taken(m_calls), QStringList{u"execute a"_s});
            services.undo();
            services.redo();
            QCOMPARE(taken(m_calls), (QStringList{u"undo a"_s, u"redo a"_s}));
        }
        QCOMPARE(taken(m_calls), QStringList{u"destroy a"_s});
    }

    void historyChangedTellsEachChangeOfTheAnswersAndNoMore()
    {
        OrvServices services;
        QSignalSpy changed(&services, &OrvServices::historyChanged);
        const auto changes = [&] {
            const qsizetype count = changed.size();
            changed.clear();
            return count;
        };
        services.undo();
        services.redo();
        services.setClean();
        services.clearHistory();
        QCOMPARE(changes(), 0);
        services.pushCommand(newCommand("a")); // can undo, is no longer clean
        QCOMPARE(changes(), 1);
        services.pushCommand(newCommand("b"));
        QCOMPARE(changes(), 0);
        services.setClean();
        QCOMPARE(changes(), 1);
        services.undo(); // can redo, is no longer clean
        QCOMPARE(changes(), 1);
        services.undo(); // can't undo
        QCOMPARE(changes(), 1);
        services.redo();
        QCOMPARE(changes(), 1);
        services.setClean();
        QCOMPARE(changes(), 1);
        services.forgetClean();
        QCOMPARE(changes(), 1);
        services.clearHistory();
        QCOMPARE(changes(), 1);
        QVERIFY(services.isClean());
    }

    void theLimitDropsTheOldest()
    {
        OrvServices services;
        services.pushCommand(newCommand("a"));
        services.pushCommand(newCommand("b"));
        services.setHistoryLimit(0);
        QCOMPARE(services.undoDepth(), 1);
    }

    void sensorsAreCalledFromTheEventLoop()
    {
        OrvServices services;
        NxSFFloat field(nullptr, "field", 1);
        int calls = 0;
        NxFieldSensor sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &calls);
        sensor.attach(&field);
        field.setValue(2);
        field.setValue(3);
        QCOMPARE(calls, 0);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
    }
};

QTEST_GUILESS_MAIN(TestOrvServices)
#include "tst_OrvServices.moc"
