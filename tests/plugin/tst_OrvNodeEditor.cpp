#include "HostHarness.h"
#include "OrvFieldEditorDockWin.h"
#include "OrvNodeEditor.h"
#include "RecordingEditor.h"

#include "orvane/extender/OrvEditor.h"

#include "meridane/scene/fields/NxSField.h"

#include <QLabel>
#include <QMetaMethod>

#include <memory>

namespace {

/// What another plug-in may bring.
class GalleryEditor final : public OrvEditor {
public:
    GalleryEditor()
        : m_label(std::make_unique<QLabel>(QStringLiteral("Gallery")))
    {
        m_name = "gallery";
        m_handledType = NxFieldGallery::getClassTypeId();
        m_widget = m_label.get();
    }
    void load() override { m_label->hide(); }
    void unload() override { }

private:
    std::unique_ptr<QLabel> m_label;
};

struct Extensions {
    QStringList calls;
    RecordingEditor line{"line", NxSField::getClassTypeId(), calls};
    RecordingEditor fieldsOfNodes{"fields of nodes", NxFieldGallery::getClassTypeId(), calls};
    GalleryEditor gallery;
    OrvNodeEditor dock;
};

} // namespace

class TestOrvNodeEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_extensions = std::make_unique<Extensions>(); }

    void cleanup()
    {
        m_tool.reset();
        m_extensions.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorWritesTheStrings()
    {
        const OrvExtension& dock = m_extensions->dock;
        QCOMPARE(dock.getName(), VbString("Node Editor"));
        QCOMPARE(dock.getAuthor(), VbString("KLD"));
        QCOMPARE(dock.getDescription(), VbString("Node Editor for Orvane."));
        QCOMPARE(dock.getVersion(), VbString("1.0.0"));
    }

    void activateAndDeactivateSpeakToTheShell()
    {
        start({});
        QCOMPARE(m_tool->dock()->windowTitle(), QStringLiteral("Node Editor"));
        m_tool->manager.setActiveProfile(nullptr);
        QCOMPARE(m_tool->shell.calls,
            QStringList(
                {QStringLiteral("addDockWidget Node Editor 2"), QStringLiteral("announceExtension Node Editor 1"),
                    QStringLiteral("removeDockWidget Node Editor"), QStringLiteral("withdrawExtension Node Editor")}));
    }

    void editorOfTheNodeIsShown()
    {
        start({QStringLiteral("line"), QStringLiteral("gallery")});
        m_tool->services.selectNode(m_tool->node.get());
        QCOMPARE(m_tool->dock()->widget(), m_extensions->gallery.getWidget());
        QVERIFY(m_tool->dock()->isVisible());
        QCOMPARE(m_extensions->gallery.getEditedObject(), static_cast<NxTypedObject*>(m_tool->node.get()));
        QVERIFY(m_extensions->gallery.isActive());
    }

    void selectedFieldsAreNotFollowed()
    {
        start({QStringLiteral("line"), QStringLiteral("gallery")});
        m_tool->services.selectField(&m_tool->node->sfFloat);
        QVERIFY(m_tool->dock()->isHidden());
    }

    void fieldEditorsFitNoNode()
    {
        start({QStringLiteral("line")});
        m_tool->services.selectNode(m_tool->node.get());
        QVERIFY(m_tool->dock()->isHidden());
        QVERIFY(m_tool->dock()->widget() == nullptr);
    }

    void aFieldEditorOfANodeStaysHiddenInTheDock()
    {
        start({QStringLiteral("fields of nodes")});
        m_extensions->calls.clear();
        m_tool->services.selectNode(m_tool->node.get());
        QVERIFY(m_tool->dock()->isVisible());
        QCOMPARE(m_tool->dock()->widget(), m_extensions->fieldsOfNodes.getFrame());
        QVERIFY(m_extensions->fieldsOfNodes.isActive());
        QVERIFY(m_extensions->fieldsOfNodes.getFrame()->isHidden());
        QVERIFY(!m_extensions->calls.contains(QStringLiteral("fields of nodes hide")));
        QCoreApplication::processEvents();
        QVERIFY(!m_extensions->fieldsOfNodes.getFrame()->isVisible());
        m_tool->services.selectNode(nullptr);
        QVERIFY(m_tool->dock()->isHidden());
    }

    void noSelectionReleasesTheEditor()
    {
        start({QStringLiteral("gallery")});
        m_tool->services.selectNode(m_tool->node.get());
        m_tool->services.selectNode(nullptr);
        QVERIFY(m_tool->dock()->isHidden());
        QVERIFY(m_tool->dock()->widget() == nullptr);
        QVERIFY(m_extensions->gallery.getWidget()->parent() == nullptr);
        QVERIFY(!m_extensions->gallery.isActive());
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = OrvNodeEditor::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(
            meta.method(meta.methodOffset()).methodSignature(), QByteArray("s_selectedNodeChanged(NxFieldContainer*)"));
        QCOMPARE(meta.superClass(), &OrvExtension::staticMetaObject);
    }

private:
    void start(const QStringList& controlled)
    {
        m_tool = std::make_unique<HostHarness>(QList<OrvExtension*>{&m_extensions->line, &m_extensions->fieldsOfNodes,
                                                   &m_extensions->gallery, &m_extensions->dock},
            QStringLiteral("Node Editor"), controlled);
    }

    std::unique_ptr<Extensions> m_extensions;
    std::unique_ptr<HostHarness> m_tool;
};

QTEST_MAIN(TestOrvNodeEditor)
#include "tst_OrvNodeEditor.moc"
