#include "extender/broken/Broken.h"
#include "extender/broken/EditorOfFloats.h"

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/fields/NxFieldSensor.h"

#include <QEvent>
#include <QPaintEvent>
#include <QTimer>

#include <stdexcept>

// Compiled once for each place that it throws in, which is THROWS_IN.
namespace {

enum class Place {
    Activate,
    Deactivate,
    SetEditedObject,
    GetWidget,
    EditorActivate,
    EditorDeactivate,
    Slot,
    Sensor,
    EventFilter,
    Paint,
    Timer,
    Execute,
    Undo,
    Redo
};

constexpr Place here = Place::THROWS_IN;

void visit(Place place)
{
    if (place == here)
        throw std::runtime_error("the dial is gone");
}

class Command : public OrvCommand {
public:
    explicit Command(NxField& field)
        : m_field(field)
    {
    }

    void execute() override
    {
        visit(Place::Execute);
        m_field.set("2");
    }
    void undo() override { visit(Place::Undo); }
    void redo() override { visit(Place::Redo); }

private:
    NxField& m_field; // of the node that the history keeps
};

class Widget : public QWidget {
protected:
    void paintEvent(QPaintEvent* /*event*/) override { visit(Place::Paint); }
};

class Editor : public EditorOfFloats {
public:
    Editor() { setWidget(new Widget); }

    void activate() override
    {
        EditorOfFloats::activate();
        visit(Place::EditorActivate);
    }
    void deactivate() override
    {
        visit(Place::EditorDeactivate);
        EditorOfFloats::deactivate();
    }
    void setEditedObject(NxTypedObject* object) override
    {
        visit(Place::SetEditedObject);
        EditorOfFloats::setEditedObject(object);
    }
    QWidget* getWidget() const override
    {
        if (getEditedObject() != nullptr)
            visit(Place::GetWidget);
        return EditorOfFloats::getWidget();
    }
};

class Extension : public Quiet<OrvExtension> {
public:
    Extension()
        : Quiet("Throwing")
    {
    }

    void activate() override
    {
        OrvExtension::activate();
        visit(Place::Activate);
        connect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, &Extension::follow);
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, [] { visit(Place::Timer); });
    }
    void deactivate() override
    {
        OrvExtension::deactivate();
        qApp->removeEventFilter(this);
        m_sensor.detach();
        disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
        visit(Place::Deactivate);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            visit(Place::EventFilter);
        return Quiet::eventFilter(object, event);
    }

private:
    void follow(NxField* field)
    {
        m_sensor.attach(field);
        if (field == nullptr)
            return;
        visit(Place::Slot);
        if constexpr (here == Place::Execute || here == Place::Undo || here == Place::Redo)
            OrvServices::getInstance()->pushCommand(new Command(*field));
    }

    NxFieldSensor m_sensor{[](void*, NxSensor*) { visit(Place::Sensor); }, nullptr};
};

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override
    {
        addExtension(&m_editor);
        addExtension(&m_extension);
        OrvPlugin::load();
    }

private:
    Editor m_editor;
    Extension m_extension;
};

} // namespace

BROKEN_PLUGIN(Plugin)
