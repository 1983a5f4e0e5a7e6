#include "scene/RandomScene.h"
#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"
#include "scene/recovery/RecoveryRun.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

using Base = meridane::RecoveryDescription::Base;

namespace {

constexpr int longList = 10'000'000;

VbString longText(char character)
{
    return VbString(std::string(4'000'000, character));
}

void setImage(NxSFImage& image, unsigned char value)
{
    constexpr int side = 1024;
    image.setValue(VbVec2s(side, side), 4, std::vector<unsigned char>(std::size_t{side} * side * 4, value));
}

} // namespace

/// Changes between the slices of a capture that takes many.
class TestRecoverySlices : public QObject {
    Q_OBJECT

private:
    NxRef<NxGroup> m_root;
    NxRef<ProbeNode> m_probe;
    NxRef<NxFieldGallery> m_gallery;
    std::unique_ptr<JournalRun> m_journal;
    std::unique_ptr<RecoveryRun> m_run;

    void start(Base base)
    {
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), base);
        m_run->runAll();
    }
    void captureAndCompare()
    {
        m_run->runAll();
        const NxRef<NxGroup> recovered = m_run->recover();
        QVERIFY(recovered.get() != nullptr);
        QCOMPARE(findDifference(*recovered, *m_root), std::string());
    }
    void runSomeSlices()
    {
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_run->runSlice());
    }

private Q_SLOTS:
    void init()
    {
        m_root = new NxGroup;
        m_probe = new ProbeNode;
        m_gallery = new NxFieldGallery;
        m_root->addChild(m_probe.get());
        m_root->addChild(m_gallery.get());
    }
    void cleanup()
    {
        m_run.reset();
        m_journal.reset();
    }

    void aLongListTakesManySlices()
    {
        start(Base::File);
        m_probe->weights.setValues(std::vector<float>(longList, 3));
        QVERIFY(m_run->runAll() > 50);
        captureAndCompare();
        QVERIFY(m_run->capture().byteCount() > longList * sizeof(float));
    }

    void ofALongListOnlyTheRowsThatChangeAreCaptured()
    {
        m_probe->weights.setValues(std::vector<float>(1'000'000, 3));
        start(Base::File);
        m_probe->weights.set1Value(500'000, 4);
        m_probe->weights.insertSpace(10, 2);
        m_probe->weights.deleteValues(900'000, 3);
        captureAndCompare();
        QVERIFY(m_run->capture().byteCount() < 2000);
    }

    void rowsThatChangeWhileTheirListIsCaptured()
    {
        start(Base::File);
        m_probe->weights.setValues(std::vector<float>(2'000'000, 3));
        for (int i = 0; i < 10; ++i) {
            QVERIFY(m_run->runSlice());
            m_probe->weights.set1Value(0, static_cast<float>(i)); // in the part that is captured
            m_probe->weights.set1Value(1'999'999 - i, 5); // and in the one that isn't
            m_probe->weights.insertSpace(100'000 * i, 3);
            m_probe->weights.deleteValues(60'000 * i, 2);
        }
        captureAndCompare();
        QCOMPARE(m_journal->finish()->records().size(), std::size_t{1});
    }

    void aListThatIsReplacedWhileItIsCaptured()
    {
        start(Base::File);
        for (int rows : {2'000'000, 1'500'000, 5, 2'500'000}) {
            m_probe->weights.setValues(std::vector<float>(static_cast<std::size_t>(rows), 3));
            m_run->runSlice();
        }
        captureAndCompare();
    }

    void aTextThatIsReplacedWhileItIsCaptured()
    {
        start(Base::File);
        m_probe->title.setValue(longText('a'));
        runSomeSlices();
        m_probe->title.setValue(longText('b'));
        captureAndCompare();
    }

    void anImageThatIsReplacedWhileItIsCaptured()
    {
        start(Base::File);
        setImage(m_gallery->sfImage, 1);
        runSomeSlices();
        setImage(m_gallery->sfImage, 2);
        captureAndCompare();
    }

    void otherPlacesOfTheNodeWhileATextIsCaptured()
    {
        start(Base::File);
        m_probe->title.setValue(longText('a'));
        runSomeSlices();
        m_probe->title.setIgnored(1);
        m_probe->size.setValue(4);
        m_probe->setName("probe");
        captureAndCompare();
    }

    void aNodeThatIsDestroyedWhileItIsCaptured()
    {
        start(Base::File);
        m_probe->title.setValue(longText('a'));
        m_gallery->sfString.setValue(longText('c'));
        runSomeSlices();
        m_root->removeChild(0);
        m_probe = nullptr;
        m_journal->finish();
        m_journal->steps().clear();
        captureAndCompare();
    }

    void aNodeThatIsDestroyedBeforeItIsCaptured()
    {
        start(Base::File);
        const NxRef<NxTransform> group(new NxTransform);
        group->addChild(new ProbeNode);
        m_root->addChild(group.get());
        m_probe->size.setValue(4);
        m_root->removeChild(2);
        m_root->removeChild(0);
        m_journal->finish();
        m_probe = nullptr;
        m_journal->steps().clear();
        captureAndCompare();
    }

    void aDefaultOfANewNodeChangesAfterItsCapture()
    {
        start(Base::File);
        const NxRef<ProbeNode> added(new ProbeNode);
        m_root->addChild(added.get());
        // Within one step, so that the journal has these places when the node is captured.
        added->size.setValue(4);
        added->size.setValue(1.5F);
        added->weights.set1Value(0, 4);
        added->weights.set1Value(0, 1);
        added->title.setIgnored(1);
        added->title.setIgnored(0);
        added->setName("a");
        added->setName("");
        captureAndCompare();
        added->size.setValue(5);
        added->weights.set1Value(0, 5);
        added->title.setIgnored(1);
        added->setName("b");
        captureAndCompare();
    }

    void childrenThatChangeWhileTheSceneIsCaptured()
    {
        for (int i = 0; i < 20'000; ++i)
            m_root->addChild(new ProbeNode);
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::Nothing);
        int slices = 0;
        for (; m_run->runSlice(); ++slices) {
            if (slices % 50 != 0)
                continue;
            m_root->removeChild(slices);
            m_root->insertChild(new NxTransform, slices / 2);
            static_cast<NxTransform*>(m_root->getChild(slices / 2))->addChild(m_root->getChild(10'000));
            m_root->removeChild(m_root->getNumChildren() - 1);
        }
        QVERIFY(slices > 1000);
        captureAndCompare();
        m_root->removeAllChildren();
        captureAndCompare();
    }

    void aSceneThatChangesItsStructureAtTheStartBeginsFromNothing()
    {
        for (int i = 0; i < 2000; ++i)
            m_root->addChild(new ProbeNode);
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::File);
        QVERIFY(m_run->runSlice());
        m_probe->size.setValue(4);
        QVERIFY(m_run->runSlice());
        QVERIFY(m_run->bytes().empty());
        m_root->removeChild(100);
        captureAndCompare();
        QCOMPARE(m_run->capture().description().base, Base::Nothing);
    }

    void aValueThatChangesAtTheStartIsCaptured()
    {
        for (int i = 0; i < 2000; ++i)
            m_root->addChild(new ProbeNode);
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::File);
        QVERIFY(m_run->runSlice());
        static_cast<ProbeNode*>(m_root->getChild(1900))->size.setValue(4);
        m_probe->setName("first");
        captureAndCompare();
        QCOMPARE(m_run->capture().description().base, Base::File);
        QCOMPARE(m_run->capture().description().nodeCount, std::uint64_t{2003});
    }

    void aPlaceOfAnOpenStepIsWatchedFromTheStart()
    {
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_probe->size.setValue(4);
        m_probe->weights.set1Value(0, 4);
        m_probe->setName("a");
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::File);
        m_run->runAll();
        m_probe->size.setValue(5);
        m_probe->weights.set1Value(0, 5);
        m_probe->setName("b");
        captureAndCompare();
        QCOMPARE(m_journal->finish()->records().size(), std::size_t{3});
    }

    void placesThatChangeAllTheTimeAreCapturedInTheEnd()
    {
        start(Base::File);
        const std::uint64_t commits = m_run->capture().commitCount();
        int slices = 0;
        do {
            // More than one slice takes.
            m_probe->weights.setValues(std::vector<float>(1'000'000, static_cast<float>(++slices)));
            QVERIFY(slices < 1000);
        } while (m_run->runSlice());
        QCOMPARE(m_run->capture().commitCount(), commits + 1);
        captureAndCompare();
    }

    void aDragDoesNotHastenTheFirstCapture()
    {
        for (int i = 0; i < 50'000; ++i)
            m_root->addChild(new ProbeNode);
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::Nothing);
        int slices = 0;
        do {
            m_probe->size.setValue(static_cast<float>(++slices));
        } while (m_run->runSlice());
        QVERIFY(slices > 5000);
        captureAndCompare();
        QVERIFY(m_journal->finish()->bytes() <= 1024);
    }
};

QTEST_APPLESS_MAIN(TestRecoverySlices)
#include "tst_RecoverySlices.moc"
