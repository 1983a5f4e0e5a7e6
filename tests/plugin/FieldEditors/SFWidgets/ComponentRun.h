#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"
#include "Patience.h"
#include "plugin/EditorHarness.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

/// A loaded and shown editor of a value of several components, with a field of its type in the gallery.
class ComponentRun {
public:
    /// The type is a word such as "SFVec2f". Without a value the editor gets no field yet.
    ComponentRun(std::unique_ptr<DvSFieldWidget> componentEditor, const QString& type, const QString& value = {})
        : editor(std::move(componentEditor))
        , field(ToolHarness::fieldOf(*m_harness.node, type))
        , m_run(*editor)
    {
        m_run.window.resize(600, 60);
        [this] { QVERIFY(QTest::qWaitForWindowActive(&m_run.window, testPatience)); }();
        if (!value.isEmpty()) {
            set(value);
            m_run.select(field);
        }
    }

    template <typename Child>
    [[nodiscard]] Child* find(const char* name) const
    {
        return m_run.find<Child>(name);
    }
    [[nodiscard]] QWidget* frame() const { return find<QWidget>("m_editionFrame"); }
    /// The layout of the edit area.
    [[nodiscard]] QBoxLayout* row() const { return qobject_cast<QBoxLayout*>(frame()->layout()); }
    /// The layouts of label and control, from left to right.
    [[nodiscard]] QList<QBoxLayout*> parts() const
    {
        QList<QBoxLayout*> found;
        for (int index = 0; index < row()->count(); ++index) {
            if (auto* const part = qobject_cast<QBoxLayout*>(row()->itemAt(index)->layout()); part != nullptr)
                found << part;
        }
        return found;
    }
    template <typename Control = QLineEdit>
    [[nodiscard]] QList<Control*> controls() const
    {
        QList<Control*> found;
        for (const QBoxLayout* const part : parts())
            found << qobject_cast<Control*>(part->itemAt(1)->widget());
        return found;
    }
    [[nodiscard]] QList<QLabel*> labels() const
    {
        QList<QLabel*> found;
        for (const QBoxLayout* const part : parts())
            found << qobject_cast<QLabel*>(part->itemAt(0)->widget());
        return found;
    }
    [[nodiscard]] QStringList labelTexts() const
    {
        QStringList texts;
        for (const QLabel* const label : labels())
            texts << label->text();
        return texts;
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (const QLineEdit* const line : controls())
            all << line->text();
        return all;
    }

    /// Replaces the text of a line key by key.
    void type(int index, const QString& text) const
    {
        QLineEdit* const line = controls().at(index);
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    void press(int index, Qt::Key key) const { QTest::keyClick(controls().at(index), key); }
    void click(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }

    /// Changes the field from outside, without telling the editor yet.
    void set(const QString& value) const { field->set(value.toUtf8().constData()); }
    [[nodiscard]] QString text() const { return ToolHarness::textOf(*field); }
    [[nodiscard]] int pushed() const { return m_harness.services.pushed; }
    [[nodiscard]] OrvCommand& lastCommand() const { return *m_harness.services.commands.back(); }

private:
    ToolHarness m_harness;

public:
    std::unique_ptr<DvSFieldWidget> editor;
    NxField* field;

private:
    EditorRun m_run;
};
