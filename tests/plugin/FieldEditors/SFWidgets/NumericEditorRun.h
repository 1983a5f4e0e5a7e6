#pragma once

#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"
#include "Patience.h"
#include "plugin/EditorHarness.h"
#include "plugin/SliderDriver.h"

#include <QPushButton>

#include <memory>

/// The numeric editor of a type word such as "SFFloat".
inline std::unique_ptr<DvSFieldWidget> makeNumericEditor(const QString& type, const char* name = nullptr)
{
    if (type == QLatin1String("SFFloat"))
        return std::make_unique<DvSFFloatWidget>(name);
    if (type == QLatin1String("SFDouble"))
        return std::make_unique<DvSFDoubleWidget>(name);
    if (type == QLatin1String("SFInt32"))
        return std::make_unique<DvSFInt32Widget>(name);
    if (type == QLatin1String("SFShort"))
        return std::make_unique<DvSFShortWidget>(name);
    if (type == QLatin1String("SFUInt32"))
        return std::make_unique<DvSFUInt32Widget>(name);
    return std::make_unique<DvSFUShortWidget>(name);
}

/// A loaded and shown numeric editor, with a field of its type to edit and the controls to do it with.
class NumericEditorRun {
public:
    explicit NumericEditorRun(const QString& type)
        : editor(makeNumericEditor(type))
        , field(ToolHarness::fieldOf(*m_harness.node, type))
        , m_run(*editor)
        , driver(*editor->getFrame())
    {
        m_run.window.resize(700, 60);
        m_run.window.show();
        [this] { QVERIFY(QTest::qWaitForWindowActive(&m_run.window, testPatience)); }();
    }
    /// The same, editing the field with that value.
    NumericEditorRun(const QString& type, const QString& value)
        : NumericEditorRun(type)
    {
        set(value);
        select(field);
    }

    /// Another field of the same type, in a node of its own.
    struct Other {
        explicit Other(const QString& type)
            : field(ToolHarness::fieldOf(*m_node, type))
        {
        }

    private:
        NxRef<NxFieldGallery> m_node = new NxFieldGallery;

    public:
        NxField* field;
    };

    void select(NxField* object) { m_run.select(object); }
    void deselect()
    {
        editor->deactivate();
        editor->setEditedObject(nullptr);
    }

    /// Changes the field from outside, without telling the editor yet.
    void set(const QString& value) { field->set(value.toUtf8().constData()); }
    [[nodiscard]] QString fieldText() const { return ToolHarness::textOf(*field); }
    [[nodiscard]] QString lineText() const { return driver.line->text(); }
    /// The position of the slider, from 0 at its left end.
    [[nodiscard]] int position() const
    {
        return static_cast<int>(qint64{driver.slider->value()} - driver.slider->minimum());
    }
    [[nodiscard]] int positions() const
    {
        return static_cast<int>(qint64{driver.slider->maximum()} - driver.slider->minimum());
    }
    [[nodiscard]] int pushed() const { return m_harness.services.pushed; }
    [[nodiscard]] OrvCommand& command(int index) const
    {
        return *m_harness.services.commands.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] RecordingServices& services() { return m_harness.services; }
    [[nodiscard]] QPushButton& button(const char* name) const { return *m_run.find<QPushButton>(name); }

private:
    ToolHarness m_harness;

public:
    std::unique_ptr<DvSFieldWidget> editor;
    NxField* field;

private:
    EditorRun m_run;

public:
    SliderDriver driver;
};
