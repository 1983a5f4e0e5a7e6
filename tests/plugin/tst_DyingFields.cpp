#include "OrvDefaults.h"
#include "plugin/HostHarness.h"
#include "plugin/Monkey.h"

#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QAbstractSlider>
#include <QLineEdit>
#include <QWindow>

namespace {

/// A gallery that reports its destruction.
class MortalGallery final : public NxFieldGallery {
public:
    explicit MortalGallery(bool& dead)
        : m_dead(dead)
    {
    }
    MortalGallery(const MortalGallery&) = delete;
    MortalGallery& operator=(const MortalGallery&) = delete;

private:
    ~MortalGallery() override { m_dead = true; }

    bool& m_dead;
};

/// An edit that is begun on the first control that takes one, and finished later. Mouse and keys come through the
/// window, as a user's do: what is hidden meanwhile gets none.
class BegunEdit {
public:
    explicit BegunEdit(const QWidget* dock)
        : m_window(dock->window()->windowHandle())
    {
        for (QWidget* const child : dock->findChildren<QWidget*>()) {
            const bool takesEdits
                = qobject_cast<QAbstractSlider*>(child) != nullptr || qobject_cast<QLineEdit*>(child) != nullptr;
            if (!takesEdits || !child->isVisible() || !child->isEnabled())
                continue;
            m_place = child->mapTo(dock->window(), child->rect().center());
            QTest::mousePress(m_window, Qt::LeftButton, {}, m_place);
            QTest::mouseMove(m_window, m_place + QPoint(5, 0));
            QTest::keyClick(m_window, Qt::Key_1);
            return;
        }
    }

    void finish() const
    {
        QTest::mouseMove(m_window, m_place + QPoint(9, 0));
        QTest::mouseRelease(m_window, Qt::LeftButton, {}, m_place);
        QTest::keyClick(m_window, Qt::Key_Return);
    }

private:
    QWindow* m_window;
    QPoint m_place;
};

} // namespace

/// Fields and nodes that go while an editor shows them, a sensor waits, an edit is under way or the history refers to
/// them. The editors keep their pointer to a field, so it is the host that must see to it.
class TestDyingFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dead = false;
        m_monkey = std::make_unique<Monkey>(7);
        m_plugin = std::make_unique<OrvDefaults>();
        m_host = std::make_unique<HostHarness>(
            *m_plugin, QStringLiteral("Field Editor"), QStringList{QStringLiteral("*")});
        m_host->shell.window.resize(900, 300);
        m_scene = NxRef<NxGroup>(new NxGroup);
        m_scene->addChild(new MortalGallery(m_dead));
    }

    void cleanup()
    {
        m_host->services.selectField(nullptr);
        m_host.reset();
        m_plugin.reset();
        m_monkey.reset();
        m_scene = {};
        QVERIFY(m_dead);
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void cleanupTestCase() const
    {
        // Most fields have an editor, and most editors are quick to write.
        QVERIFY2(m_kept > 20, qPrintable(QString::number(m_kept)));
    }

    void aSelectedFieldOutlivesItsScene_data() { addFields(); }

    void aSelectedFieldOutlivesItsScene()
    {
        m_host->services.selectField(field());
        poke(5);
        m_host->services.clearHistory();
        m_scene = {};
        QVERIFY(!m_dead);
        poke(15);
        m_host->services.undo();
        letGo();
        QVERIFY(m_dead);
        poke(5);
        m_host->pump();
        QVERIFY(!m_host->services.canUndo());
    }

    void aClosingSceneEndsAnEditUnderWay_data() { addFields(); }

    void aClosingSceneEndsAnEditUnderWay()
    {
        m_host->services.selectNode(m_scene->getChild(0));
        m_host->services.selectField(field());
        QCoreApplication::processEvents();
        const BegunEdit edit(m_host->dock());
        field()->setIgnored(true); // the editor's sensor waits
        letGo();
        m_scene = {};
        QVERIFY(m_dead);
        edit.finish();
        m_host->pump();
        QCoreApplication::processEvents();
        poke(5);
        QVERIFY(!m_host->services.canUndo());
    }

    void theHistoryKeepsANodeThatTheSceneHasLost_data() { addFields(); }

    void theHistoryKeepsANodeThatTheSceneHasLost()
    {
        NxField* const edited = field();
        m_host->services.selectNode(m_scene->getChild(0));
        m_host->services.selectField(edited);
        poke(40);
        m_host->services.selectField(nullptr);
        m_host->services.selectNode(nullptr);
        m_scene->removeChild(0);
        QCOMPARE(m_dead, m_host->services.undoDepth() == 0);
        if (m_dead)
            return;
        ++m_kept;
        const QString after = ToolHarness::textOf(*edited);
        while (m_host->services.canUndo())
            m_host->services.undo();
        while (m_host->services.canRedo())
            m_host->services.redo();
        QCOMPARE(ToolHarness::textOf(*edited), after);
        m_host->services.clearHistory();
        QVERIFY(m_dead);
        m_host->pump();
    }

private:
    static void addFields()
    {
        QTest::addColumn<int>("index");
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        const NxFieldData* const data = gallery->getFieldData();
        for (int index = 0; index < data->getNumFields(); ++index)
            QTest::newRow(data->getFieldName(index).getString()) << index;
    }

    [[nodiscard]] NxField* field() const
    {
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        NxFieldContainer* const node = m_scene->getChild(0);
        return node->getField(VbName(name.toLatin1().constData()));
    }

    void poke(int count)
    {
        for (; count > 0; --count) {
            m_monkey->poke(m_host->dock());
            QCoreApplication::processEvents();
        }
        while (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
    }

    // What the application does before a scene goes.
    void letGo()
    {
        m_host->services.selectField(nullptr);
        m_host->services.selectNode(nullptr);
        m_host->services.clearHistory();
    }

    std::unique_ptr<Monkey> m_monkey;
    std::unique_ptr<OrvDefaults> m_plugin;
    std::unique_ptr<HostHarness> m_host;
    NxRef<NxGroup> m_scene;
    bool m_dead = false;
    int m_kept = 0; // nodes that the history kept
};

QTEST_MAIN(TestDyingFields)
#include "tst_DyingFields.moc"
