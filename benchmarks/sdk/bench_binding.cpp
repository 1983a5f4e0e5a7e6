// An editor of the kit beside one that is written by hand with the same widgets, from the selection of a field until it
// is painted, on a platform without a display that paints for real.

#include "Settle.h"
#include "Timing.h"

#include "orvane/sdk.h"

#include <QApplication>
#include <QDial>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr int rounds = 301;

class KitEditor final : public orv::FieldEditor<NxSFFloat> {
    void build() override
    {
        auto& dial = add<QDial>();
        bind(
            dial, &QDial::valueChanged, [&dial](float value) { dial.setValue(qRound(value)); },
            [](int value) { return static_cast<float>(value); });
    }
};

/// The least that shows the same and follows the field.
class HandWrittenEditor final : public OrvEditor {
public:
    HandWrittenEditor()
        : m_sensor(
            [](void* editor, NxSensor* /*sensor*/) { static_cast<HandWrittenEditor*>(editor)->showField(); }, this)
    {
        m_handledType = NxSFFloat::getClassTypeId();
        m_widget = &m_frame;
    }

    void load() override
    {
        auto* const row = new QHBoxLayout(&m_frame);
        auto* const label = new QLabel(QStringLiteral("SFFloat"));
        label->setFrameShape(QFrame::Box);
        row->addWidget(label);
        m_dial = new QDial;
        row->addWidget(m_dial, 1);
        for (QPushButton** const button : {&m_default, &m_ignore}) {
            *button = new QPushButton;
            (*button)->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
            (*button)->setFocusPolicy(Qt::NoFocus);
            QPixmap icon(16, 16);
            icon.fill(Qt::gray);
            (*button)->setIcon(icon);
            row->addWidget(*button);
        }
        m_ignore->setCheckable(true);
        connect(m_dial, &QDial::valueChanged, this, [this](int value) {
            if (NxField* const field = m_sensor.getAttachedField())
                static_cast<NxSFFloat*>(field)->setValue(static_cast<float>(value));
        });
    }
    void unload() override { }
    void activate() override
    {
        OrvEditor::activate();
        m_sensor.attach(static_cast<NxSFFloat*>(m_editedObject));
        showField();
        m_frame.show();
    }
    void deactivate() override
    {
        OrvEditor::deactivate();
        m_sensor.detach();
        m_frame.hide();
    }

private:
    void showField()
    {
        const auto& field = static_cast<const NxSFFloat&>(*m_sensor.getAttachedField());
        const QSignalBlocker blocker(m_dial);
        m_dial->setValue(qRound(field.getValue()));
        m_ignore->setChecked(field.isIgnored());
    }

    QFrame m_frame;
    QDial* m_dial = nullptr;
    QPushButton* m_default = nullptr;
    QPushButton* m_ignore = nullptr;
    NxFieldSensor m_sensor;
};

class Node : public NxNode {
    NX_NODE(Node)

public:
    NxSFFloat first{this, "first", 10};
    NxSFFloat second{this, "second", 80};
};
NX_NODE_SOURCE(Node, NxNode, "BenchmarkNode")

/// A dock that shows one editor, for one field and then for the other.
class Place {
public:
    explicit Place(OrvEditor& editor)
        : m_editor(editor)
    {
        m_editor.load();
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_dock);
        m_window.resize(600, 400);
        m_window.show();
        select(m_node->second);
        bench::settle();
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place()
    {
        release();
        m_editor.unload();
    }

    double secondsOfSelection()
    {
        m_isFirst = !m_isFirst;
        NxSFFloat& field = m_isFirst ? m_node->first : m_node->second;
        return bench::secondsToPainted(m_editor.getWidget(), [&] { select(field); });
    }

private:
    void select(NxField& field)
    {
        release();
        m_editor.setEditedObject(&field);
        m_dock.setWidget(m_editor.getWidget());
        m_editor.activate();
        m_dock.show();
    }
    void release()
    {
        if (!m_editor.isActive())
            return;
        m_editor.deactivate();
        m_editor.setEditedObject(nullptr);
        m_dock.setWidget(nullptr);
        m_editor.getWidget()->setParent(nullptr);
        m_dock.hide();
    }

    OrvEditor& m_editor;
    QMainWindow m_window;
    QDockWidget m_dock;
    NxRef<Node> m_node = new Node;
    bool m_isFirst = false;
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const OrvServices services;
    KitEditor kitEditor;
    HandWrittenEditor handWrittenEditor;
    Place kit(kitEditor);
    Place handWritten(handWrittenEditor);
    constexpr double bar = 1.1;
    bench::compare(
        "field selected to editor painted: kit, by hand", bar, rounds, [&] { return kit.secondsOfSelection(); },
        [&] { return handWritten.secondsOfSelection(); });
}
