#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include "orvane/extender/OrvDocument.h"

#include <QDial>
#include <QLineEdit>
#include <QSignalSpy>

#include <optional>

// Widgets that show a field and write it.
class TestBinding : public QObject {
    Q_OBJECT

    /// A dial that is tied to the heading of a signpost.
    struct Tool : ToolHarness {
        Tool()
        {
            dial.setRange(0, 359);
            binding.bind(
                dial, &QDial::valueChanged, [this](const Angle& angle) { dial.setValue(qRound(angle.degrees)); },
                [](int degrees) { return Angle{static_cast<float>(degrees)}; });
        }

        QDial dial;
        orv::Binding<SFAngle> binding;
        NxRef<Signpost> post = new Signpost;
    };

private Q_SLOTS:
    void theFieldIsShownWhenItIsAttached()
    {
        Tool tool;
        const QSignalSpy changes(&tool.dial, &QDial::valueChanged);
        tool.binding.attach(&tool.post->heading);
        QCOMPARE(tool.dial.value(), 90);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(tool.services.pushed, 0);
    }

    void aChangeFromElsewhereIsShownWithoutAWrite()
    {
        Tool tool;
        tool.binding.attach(&tool.post->heading);
        tool.post->heading.setValue({45.25F});
        ToolHarness::pump();
        QCOMPARE(tool.dial.value(), 45);
        QCOMPARE(tool.post->heading.getValue().degrees, 45.25F);
        QCOMPARE(tool.services.pushed, 0);
    }

    void aKeyInTheWidgetIsWrittenAndUndone()
    {
        Tool tool;
        tool.binding.attach(&tool.post->heading);
        QTest::keyClick(&tool.dial, Qt::Key_Up);
        QCOMPARE(tool.post->heading.getValue().degrees, 91.0F);
        QCOMPARE(tool.services.pushed, 1);
        tool.services.undo();
        ToolHarness::pump();
        QCOMPARE(tool.dial.value(), 90);
        QCOMPARE(tool.services.pushed, 1);
    }

    void theSameValueIsNotWrittenAgain()
    {
        Tool tool;
        QVERIFY(!tool.binding.set({10}));
        tool.binding.attach(&tool.post->heading);
        QVERIFY(!tool.binding.set({90}));
        QVERIFY(tool.binding.set({10}));
        QCOMPARE(tool.services.pushed, 1);
    }

    void theNodeIsKeptUntilTheFieldIsDetached()
    {
        Tool tool;
        tool.binding.attach(&tool.post->heading);
        QCOMPARE(tool.post->getRefCount(), 2);
        const NxRef<Signpost> other(new Signpost);
        tool.binding.attach(&other->heading);
        QCOMPARE(tool.post->getRefCount(), 1);
        tool.binding.detach();
        QCOMPARE(other->getRefCount(), 1);
        QVERIFY(tool.binding.field() == nullptr);
    }

    void theLastReferenceIsReleasedSafely()
    {
        Tool tool;
        tool.binding.attach(&(new Signpost)->heading);
        tool.binding.attach(&tool.post->heading);
        QCOMPARE(tool.binding.field(), &tool.post->heading);
    }

    void aFieldWithoutANodeMayBeDestroyed()
    {
        Tool tool;
        std::optional<SFAngle> field(std::in_place, nullptr, "loose", Angle{7});
        tool.binding.attach(&*field);
        QCOMPARE(tool.dial.value(), 7);
        field.reset();
        QVERIFY(tool.binding.field() == nullptr);
        QTest::keyClick(&tool.dial, Qt::Key_Up);
        QCOMPARE(tool.services.pushed, 0);
    }

    void theNodeIsReleasedBeforeItsSceneIsClosed()
    {
        Tool tool;
        const NxRef<NxGroup> root(new NxGroup);
        root->addChild(tool.post.get());
        tool.services.document().open(OrvDocument::makeJournal(*root));
        tool.binding.attach(&tool.post->heading);
        const int references = tool.post->getRefCount();
        tool.services.document().close();
        QCOMPARE(tool.post->getRefCount(), references - 1);
        QVERIFY(tool.binding.field() == nullptr);
    }

    void aWidgetThatIsGoneIsForgotten()
    {
        Tool tool;
        orv::Binding<NxField> binding;
        auto line = std::make_unique<QLineEdit>();
        binding.bind(
            *line, &QLineEdit::editingFinished, [&](const QString& text) { line->setText(text); },
            [&] { return line->text(); });
        binding.attach(&tool.post->heading);
        QCOMPARE(line->text(), QStringLiteral("90"));
        line.reset();
        tool.post->heading.setValue({1});
        ToolHarness::pump();
    }

    void aTextThatTheFieldRefusesIsTakenBack()
    {
        Tool tool;
        orv::Binding<NxField> binding;
        QLineEdit line;
        binding.bind(
            line, &QLineEdit::editingFinished, [&](const QString& text) { line.setText(text); },
            [&] { return line.text(); });
        binding.attach(&tool.post->heading);
        QTest::keyClicks(&line, QStringLiteral("x"));
        QTest::keyClick(&line, Qt::Key_Return);
        QCOMPARE(line.text(), QStringLiteral("90"));
        QCOMPARE(tool.services.pushed, 0);
    }
};

QTEST_MAIN(TestBinding)
#include "tst_Binding.moc"
