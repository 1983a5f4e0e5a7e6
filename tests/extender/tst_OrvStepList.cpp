#include "extender/HistoryWalk.h"
#include "extender/TestCommand.h"

#include "orvane/extender/OrvStepList.h"
#include "orvane/extender/VbText.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorHandler.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

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

    void aChangeOfALongerStepGivesItAnotherNumber()
    {
        write(1);
        const std::uint64_t number = steps().number(0);
        m_services->undo();
        m_services->redo();
        QCOMPARE(steps().number(0), number);
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
        QStringList calls;
        m_services->pushCommand(new TestCommand(u"a"_s, calls));
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
