#include "Patience.h"
#include "extender/HistoryWalk.h"
#include "extender/TestCommand.h"

#include "orvane/extender/OrvStepList.h"
#include "orvane/extender/VbText.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorHandler.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// The list of steps that the services offer.
class TestOrvStepList : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] OrvStepList& steps() const { return m_services->steps(); }

    void open()
    {
        m_scene = new NxGroup;
        m_gallery = new NxFieldGallery;
        m_scene->addChild(m_gallery.get());
        m_services->document().open(OrvDocument::makeJournal(*m_scene));
    }

    void write(int value)
    {
        m_gallery->sfInt32.setValue(value);
        HistoryWalk::settle();
    }

    /// The calls of `changed`, as "dropped first".
    static QStringList changes(QSignalSpy& spy)
    {
        QStringList result;
        for (const auto& call : spy)
            result += QStringLiteral("%1 %2").arg(call.at(0).toInt()).arg(call.at(1).toInt());
        spy.clear();
        return result;
    }

    [[nodiscard]] QStringList labels() const
    {
        QStringList result;
        for (int index = 0; index < steps().count(); ++index)
            result += steps().label(index);
        return result;
    }

    QStringList m_calls; // which commands write to until they are destroyed
    std::unique_ptr<OrvServices> m_services;
    NxRef<NxGroup> m_scene;
    NxRef<NxFieldGallery> m_gallery;

private Q_SLOTS:
    void init()
    {
        m_services = std::make_unique<OrvServices>();
        open();
    }
    void cleanup() { m_services.reset(); }

    void stepsAreListedWithWhatTheyChanged()
    {
        const auto before = std::chrono::system_clock::now();
        write(1);
        m_gallery->setName("gallery");
        HistoryWalk::settle();
        QCOMPARE(labels(), QStringList({u"Set FieldGallery.sfInt32"_s, u"Rename gallery"_s}));
        QCOMPARE(steps().position(), 2);
        QCOMPARE(steps().nodeType(0), m_gallery->getTypeId());
        QCOMPARE(steps().changes(0)->records().size(), 1U);
        QVERIFY(steps().time(1) >= before && steps().time(1) <= std::chrono::system_clock::now());
        QVERIFY(steps().number(0) != steps().number(1));
        QVERIFY(steps().bytes() > 0 && steps().bytes() < steps().limit());
        QVERIFY(steps().isSavedAt(0) && !steps().isSavedAt(2));
        m_services->setClean();
        QVERIFY(!steps().isSavedAt(0) && steps().isSavedAt(2));
    }

    void aStepOfTheApplicationHasItsOwnLabel()
    {
        QVERIFY(m_services->isUndoExact());
        QStringList calls;
        const auto push = [&](const char* name, int value) {
            auto command = std::make_unique<TestCommand>(QString::fromLatin1(name), calls);
            command->whenExecuted = [this, value] { m_gallery->sfInt32.setValue(value); };
            return command.release();
        };
        m_gallery->sfInt32.setValue(1);
        m_services->pushStep(push("a", 2), u"Reload a.mrd"_s);
        m_gallery->setName("gallery"); // as an observer would
        QCOMPARE(m_services->undoDepth(), 2);
        HistoryWalk::settle();
        QCOMPARE(labels(), QStringList({u"Set FieldGallery.sfInt32"_s, u"Reload a.mrd"_s}));
        QCOMPARE(m_services->undoText(), u"Reload a.mrd"_s);
        m_services->undo();
        QCOMPARE(m_gallery->sfInt32.getValue(), 1);
        QVERIFY(m_gallery->getName().isEmpty());
        QCOMPARE(m_services->redoText(), u"Reload a.mrd"_s);
        m_services->redo();
        QCOMPARE(m_gallery->sfInt32.getValue(), 2);
        // One that changes nothing is no step.
        m_services->pushStep(push("b", 2), u"Reload b.mrd"_s);
        HistoryWalk::settle();
        QCOMPARE(steps().count(), 2);
        m_services->document().close();
        QVERIFY(!m_services->isUndoExact());
    }

    void eachChangeOfTheListIsAnnounced()
    {
        QSignalSpy changed(&steps(), &OrvStepList::changed);
        QSignalSpy updated(&steps(), &OrvStepList::updated);
        write(1);
        QCOMPARE(changes(changed), QStringList({u"0 0"_s}));
        write(2);
        write(3);
        QCOMPARE(changes(changed), QStringList({u"0 1"_s, u"0 2"_s}));
        updated.clear();
        m_services->undo();
        m_services->undo();
        QCOMPARE(updated.size(), 2);
        QVERIFY(changed.isEmpty());
        write(5);
        QCOMPARE(changes(changed), QStringList({u"0 1"_s}));
        QCOMPARE(steps().count(), 2);
        updated.clear();
        m_services->setClean();
        QCOMPARE(updated.size(), 1);
        m_services->forgetClean();
        QCOMPARE(updated.size(), 2);
        m_services->clearHistory();
        QCOMPARE(changes(changed), QStringList({u"0 0"_s}));
        QCOMPARE(steps().count(), 0);
    }

    void theOldestStepsGoFirst()
    {
        for (int value = 1; value <= 4; ++value)
            write(value);
        QVERIFY(!steps().hasDropped());
        QSignalSpy changed(&steps(), &OrvStepList::changed);
        const std::uint64_t third = steps().number(2);
        m_services->setHistoryLimit(steps().bytes() / 2);
        QCOMPARE(changes(changed), QStringList({u"2 2"_s}));
        QCOMPARE(steps().count(), 2);
        QCOMPARE(steps().number(0), third);
        QVERIFY(steps().hasDropped());
        // The newest stays, and takes the place of the one before.
        m_services->setHistoryLimit(1);
        write(9);
        QCOMPARE(changes(changed), QStringList({u"1 1"_s, u"1 0"_s}));
        QCOMPARE(steps().count(), 1);
        open();
        QVERIFY(!steps().hasDropped());
    }

    void movesAreAnnouncedWithTheirStep()
    {
        write(1);
        write(2);
        QSignalSpy moved(&steps(), &OrvStepList::movedOver);
        m_services->undo();
        m_services->redo();
        m_services->redo(); // there is nothing to redo
        QCOMPARE(moved, QList<QVariantList>({{1}, {1}}));
    }

    void aMoveToAnotherGroupIsOneStep_data()
    {
        QTest::addColumn<bool>("insertFirst");
        QTest::newRow("removed, then inserted") << false;
        QTest::newRow("inserted, then removed") << true;
    }
    void aMoveToAnotherGroupIsOneStep()
    {
        QFETCH(const bool, insertFirst);
        const NxRef<NxGroup> arm(new NxGroup);
        const NxRef<NxGroup> leg(new NxGroup);
        arm->setName("arm");
        leg->setName("leg");
        for (NxNode* node : {static_cast<NxNode*>(new NxGroup), static_cast<NxNode*>(arm.get())})
            m_scene->addChild(node);
        m_scene->addChild(leg.get());
        arm->addChild(new NxGroup);
        const NxRef<NxGroup> hand(new NxGroup);
        hand->setName("hand");
        arm->addChild(hand.get());
        HistoryWalk::settle();
        const auto number = m_services->document().journal()->number(*hand);
        const auto move = [&](NxGroup& from, NxGroup& to, int place) {
            const NxRef<NxNode> kept(hand.get());
            const int old = from.findChild(hand.get());
            const bool isAfter = &from == &to && place <= old;
            if (insertFirst)
                to.insertChild(hand.get(), &from == &to && place > old ? place + 1 : place);
            from.removeChild(old + (insertFirst && isAfter ? 1 : 0));
            if (!insertFirst)
                to.insertChild(hand.get(), place);
            HistoryWalk::settle();
        };
        const int before = steps().count();
        move(*arm, *leg, 0);
        move(*leg, *m_scene, 1);
        move(*m_scene, *m_scene, 3);
        move(*m_scene, *m_scene, 0);
        move(*m_scene, *arm, 0);
        QCOMPARE(labels().mid(before),
            QStringList({u"Move hand to leg"_s, u"Move hand to the top"_s, u"Reorder hand"_s, u"Reorder hand"_s,
                u"Move hand to arm"_s}));
        for (int step = before; step < steps().count(); ++step)
            QCOMPARE(steps().nodeType(step), hand->getTypeId());
        QCOMPARE(arm->getChild(0), hand.get());
        m_services->undo();
        QCOMPARE(m_scene->getChild(0), hand.get());
        for (int i = 0; i < 4; ++i)
            m_services->undo();
        QCOMPARE(arm->getChild(1), hand.get());
        QCOMPARE(leg->getNumChildren(), 0);
        QCOMPARE(m_services->document().journal()->number(*hand), number);
        m_services->redo();
        QCOMPARE(leg->getChild(0), hand.get());
        QCOMPARE(m_services->document().journal()->number(*hand), number);
    }

    void otherChangesOfChildrenHaveTheirLabels()
    {
        const NxRef<NxGroup> arm(new NxGroup);
        arm->setName("arm");
        m_scene->addChild(arm.get());
        HistoryWalk::settle();
        arm->addChild(new NxGroup);
        arm->addChild(new NxGroup);
        HistoryWalk::settle();
        arm->removeAllChildren();
        HistoryWalk::settle();
        m_scene->removeChild(1);
        HistoryWalk::settle();
        m_scene->addChild(new NxGroup);
        m_scene->addChild(arm.get());
        HistoryWalk::settle();
        arm->addChild(new NxGroup);
        arm->setName("leg");
        HistoryWalk::settle();
        QCOMPARE(labels(),
            QStringList({u"Add arm"_s, u"Change the children of arm"_s, u"Change the children of arm"_s,
                u"Remove arm"_s, u"Change the structure"_s, u"Change leg"_s}));
    }

    void aStepThatGrowsGetsAnotherNumber()
    {
        QLineEdit line;
        connect(&line, &QLineEdit::textEdited, &line,
            [this](const QString& text) { m_gallery->sfString.setValue(orvane::toVbString(text)); });
        line.show();
        line.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&line, testPatience));
        line.setFocus();
        QTest::keyClicks(&line, u"a"_s);
        HistoryWalk::settle();
        const std::uint64_t number = steps().number(0);
        m_services->undo();
        m_services->redo();
        QCOMPARE(steps().number(0), number);
        QSignalSpy changed(&steps(), &OrvStepList::changed);
        QTest::keyClicks(&line, u"b"_s);
        HistoryWalk::settle();
        QCOMPARE(steps().count(), 1);
        QCOMPARE(changes(changed), QStringList({u"0 0"_s}));
        QVERIFY(steps().number(0) != number);
    }

    // The selection ends what was written outside of any action.
    void aStepThatASelectionEndsIsAnnounced()
    {
        QSignalSpy finished(m_services.get(), &OrvServices::stepFinished);
        QSignalSpy changed(&steps(), &OrvStepList::changed);
        m_gallery->sfInt32.setValue(7);
        m_services->selectNode(m_gallery.get());
        QCOMPARE(finished.size(), 1);
        QCOMPARE(changes(changed), QStringList({u"0 0"_s}));
    }

    void commandsThatChangeNothingAreNoChangeOfTheList()
    {
        m_services->pushCommand(new TestCommand(u"a"_s, m_calls));
        HistoryWalk::settle();
        QCOMPARE(steps().count(), 1);
        QVERIFY(steps().label(0).isEmpty() && steps().changes(0) == nullptr);
        QVERIFY(steps().isSavedAt(0) && steps().isSavedAt(1));
    }

    void thePreferenceSetsTheLimit()
    {
        NxPreferences::set("ORVANE_HISTORY", VbString("3"));
        open();
        NxPreferences::unset("ORVANE_HISTORY");
        QCOMPARE(steps().limit(), std::size_t{3} << 20);
    }

    void aBadPreferenceIsAClearMessage_data()
    {
        QTest::addColumn<QString>("value");
        for (const char* value : {"0", "-1", "many", "3.5", "64 MiB", "0x10", "1048577", "99999999999999999999"})
            QTest::addRow("%s", value) << QString::fromLatin1(value);
    }
    void aBadPreferenceIsAClearMessage()
    {
        QFETCH(QString, value);
        QStringList messages;
        NxDebugError::setHandlerCallback(
            [](const NxError* error, void* data) {
                static_cast<QStringList*>(data)->append(orvane::toQString(error->getDebugString()));
            },
            &messages);
        NxPreferences::set("ORVANE_HISTORY", orvane::toVbString(value));
        const std::size_t before = steps().limit();
        open();
        NxPreferences::unset("ORVANE_HISTORY");
        NxDebugError::setHandlerCallback(nullptr, nullptr);
        QCOMPARE(steps().limit(), before);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.front().contains(u"ORVANE_HISTORY must be a whole number of MiB from 1 to 1048576"_s),
            qPrintable(messages.front()));
        QVERIFY(messages.front().contains(value));
    }
};

QTEST_MAIN(TestOrvStepList)
#include "tst_OrvStepList.moc"
