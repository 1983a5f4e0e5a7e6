#include "Patience.h"
#include "extender/Recording.h"
#include "extender/TestCommand.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/NxPreferences.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// The open document and the steps that its changes make, by real events.
class TestOrvDocument : public QObject {
    Q_OBJECT

private:
    // A line and a button that write to a node without a command, as some editors do.
    class Window : public QWidget {
    public:
        explicit Window(NxFieldGallery& gallery)
        {
            auto* const column = new QVBoxLayout(this);
            for (QWidget* const widget : std::initializer_list<QWidget*>{&line, &other, &button})
                column->addWidget(widget);
            connect(&line, &QLineEdit::textEdited, this,
                [&gallery](const QString& text) { gallery.sfString.setValue(orvane::toVbString(text)); });
            connect(&button, &QPushButton::clicked, this,
                [&gallery] { gallery.sfInt32.setValue(gallery.sfInt32.getValue() + 1); });
        }

        QLineEdit line;
        QLineEdit other;
        QPushButton button{u"Count"_s};
    };

    void type(const char* text) { QTest::keyClicks(&m_window->line, QString::fromLatin1(text)); }
    [[nodiscard]] VbString typed() const { return m_gallery->sfString.getValue(); }

    // Until the observers have been called and the step has ended.
    static void settle()
    {
        do {
            QCoreApplication::processEvents();
        } while (!NxDelayQueue::getDefault().isEmpty());
        QCoreApplication::processEvents();
    }

    std::unique_ptr<OrvServices> m_services;
    NxRef<NxGroup> m_scene;
    NxRef<NxFieldGallery> m_gallery;
    std::unique_ptr<Window> m_window;
    QStringList m_calls;

private Q_SLOTS:
    void init()
    {
        m_services = std::make_unique<OrvServices>();
        m_scene = new NxGroup;
        m_gallery = new NxFieldGallery;
        m_scene->addChild(m_gallery.get());
        m_services->document().open(OrvDocument::makeJournal(*m_scene));
        m_window = std::make_unique<Window>(*m_gallery);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
        m_window->line.setFocus();
        settle();
    }
    void cleanup()
    {
        m_window.reset();
        m_services.reset();
    }

    void aDocumentHasItsRootAndJournalWhileItIsOpen()
    {
        OrvDocument& document = m_services->document();
        QCOMPARE(document.root(), m_scene.get());
        QVERIFY(document.journal()->isRecording());
        QStringList signs;
        connect(&document, &OrvDocument::aboutToClose, this, [&] {
            signs << u"about to close"_s;
            QVERIFY(document.root() != nullptr);
        });
        connect(&document, &OrvDocument::closed, this, [&] { signs << u"closed"_s; });
        connect(&document, &OrvDocument::opened, this, [&] { signs << u"opened"_s; });
        document.open(OrvDocument::makeJournal(*new NxGroup));
        QCOMPARE(taken(signs), QStringList({u"about to close"_s, u"closed"_s, u"opened"_s}));
        document.close();
        document.close();
        QCOMPARE(signs, QStringList({u"about to close"_s, u"closed"_s}));
        QVERIFY(document.root() == nullptr && document.journal() == nullptr);
    }

    void aClickThatWritesWithoutACommandIsAStep()
    {
        QSignalSpy finished(m_services.get(), &OrvServices::stepFinished);
        QTest::mouseClick(&m_window->button, Qt::LeftButton);
        QVERIFY(!m_services->isClean());
        settle();
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m_services->undoText(), u"Set FieldGallery.sfInt32"_s);
        m_services->undo();
        QCOMPARE(m_gallery->sfInt32.getValue(), 0);
        QVERIFY(m_services->isClean());
    }

    void theHistoryIsAnnouncedForChangesWithoutACommand()
    {
        QSignalSpy changes(m_services.get(), &OrvServices::historyChanged);
        QSignalSpy edits(m_services.get(), &OrvServices::documentEdited);
        m_gallery->setName("x");
        QTRY_COMPARE(changes.size(), 1);
        QVERIFY(!edits.isEmpty());
        QVERIFY(m_services->canUndo());
    }

    void keysInOneLineAreOneStep()
    {
        type("abc");
        settle();
        QCOMPARE(typed(), VbString("abc"));
        QCOMPARE(m_services->undoDepth(), 1);
        m_services->undo();
        QCOMPARE(typed(), VbString(""));
        QVERIFY(m_services->isClean());
    }

    void anotherControlEndsTheTyping()
    {
        type("ab");
        QTest::mouseClick(&m_window->button, Qt::LeftButton);
        m_window->line.setFocus();
        type("c");
        settle();
        QCOMPARE(m_services->undoDepth(), 3);
    }

    void keysElsewhereAndReturnEndTheTyping()
    {
        type("ab");
        m_window->other.setFocus();
        QTest::keyClick(&m_window->other, Qt::Key_X);
        m_window->line.setFocus();
        type("c");
        QTest::keyClick(&m_window->line, Qt::Key_Return);
        type("d");
        settle();
        QCOMPARE(m_services->undoDepth(), 3);
    }

    void typingBackIsNoStep()
    {
        type("ab");
        QTest::keyClick(&m_window->line, Qt::Key_Backspace);
        QTest::keyClick(&m_window->line, Qt::Key_Backspace);
        settle();
        QCOMPARE(m_services->undoDepth(), 0);
        QVERIFY(m_services->isClean());
    }

    void whatObserversWriteBelongsToTheStepAndIsUndoneWithIt()
    {
        NxFieldSensor follower(
            [](void* data, NxSensor*) {
                auto& gallery = *static_cast<NxFieldGallery*>(data);
                gallery.sfFloat.setValue(static_cast<float>(2 * gallery.sfInt32.getValue()));
            },
            m_gallery.get());
        follower.attach(&m_gallery->sfInt32);
        QTest::mouseClick(&m_window->button, Qt::LeftButton);
        settle();
        QCOMPARE(m_gallery->sfFloat.getValue(), 2.0F);
        QCOMPARE(m_services->undoDepth(), 1);
        m_services->undo();
        settle();
        QCOMPARE(m_gallery->sfFloat.getValue(), 0.0F);
        QVERIFY(m_services->isClean());
        QVERIFY(m_services->canRedo());
        m_services->redo();
        settle();
        QCOMPARE(m_gallery->sfFloat.getValue(), 2.0F);
    }

    void anObserverThatAnswersAnUndoDoesNotSpoilIt()
    {
        // Like a spin box of few digits, which writes what it shows when that changes.
        struct SpinBox {
            NxSFDouble& field;
            int shown = 0;
        } box{m_gallery->sfDouble};
        NxFieldSensor rounder(
            [](void* data, NxSensor*) {
                auto& spinBox = *static_cast<SpinBox*>(data);
                const int shown = static_cast<int>(spinBox.field.getValue());
                if (std::exchange(spinBox.shown, shown) != shown)
                    spinBox.field.setValue(shown);
            },
            &box);
        m_gallery->sfDouble.setValue(1.25);
        settle();
        rounder.attach(&m_gallery->sfDouble);
        m_gallery->sfDouble.setValue(2);
        settle();
        m_services->undo();
        settle();
        QCOMPARE(m_gallery->sfDouble.getValue(), 1.25);
        QVERIFY(m_services->canRedo());
        m_services->redo();
        settle();
        QCOMPARE(m_gallery->sfDouble.getValue(), 2.0);
    }

    void thePreferenceLeavesUndoToTheCommands()
    {
        NxPreferences::set("ORVANE_UNDO", VbString("commands"));
        m_services->document().open(OrvDocument::makeJournal(*m_scene));
        NxPreferences::unset("ORVANE_UNDO");
        auto* const command = new TestCommand(u"a"_s, m_calls);
        command->whenExecuted = [this] { m_gallery->sfInt32.setValue(5); };
        m_services->pushCommand(command);
        settle();
        m_services->undo();
        QCOMPARE(m_gallery->sfInt32.getValue(), 5);
        QVERIFY(!m_services->isClean());
    }
};

QTEST_MAIN(TestOrvDocument)
#include "tst_OrvDocument.moc"
