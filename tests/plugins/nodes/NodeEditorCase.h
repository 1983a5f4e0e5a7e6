#pragma once

#include "plugin/ToolHarness.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvEditor.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

/// A scene with one node, and an editor that shows it as the dock "Node Editor" does.
template <typename Editor, typename Node>
class NodeEditorCase : public ToolHarness {
public:
    NodeEditorCase()
    {
        root->addChild(node.get());
        services.document().open(OrvDocument::makeJournal(*root));
        editor.load();
    }
    ~NodeEditorCase()
    {
        if (base().isActive())
            base().deactivate();
        services.document().close();
    }
    NodeEditorCase(const NodeEditorCase&) = delete;
    NodeEditorCase& operator=(const NodeEditorCase&) = delete;

    void show()
    {
        base().setEditedObject(node.get());
        base().activate();
        base().getWidget()->resize(400, 700);
        base().getWidget()->show();
        QVERIFY(QTest::qWaitForWindowExposed(base().getWidget()));
    }
    [[nodiscard]] OrvEditor& base() { return editor; }

    template <typename Widget>
    [[nodiscard]] Widget& find(const char* name)
    {
        return *base().getWidget()->template findChild<Widget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString text(const char* name) { return find<QLabel>(name).text(); }
    /// Types into the line of a field.
    void type(const char* field, const QString& text)
    {
        auto* line = base().getWidget()->template findChild<QLineEdit*>(QString::fromLatin1(field));
        if (line == nullptr)
            line = find<QWidget>(field).template findChild<QLineEdit*>();
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }

    NxRef<NxGroup> root = new NxGroup;
    NxRef<Node> node = new Node;
    Editor editor;
};
