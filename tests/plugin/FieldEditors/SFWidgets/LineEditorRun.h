#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"
#include "Patience.h"
#include "plugin/EditorHarness.h"

#include <QLineEdit>
#include <QPushButton>

#include <memory>

/// A loaded and shown editor with one line, in an active window that has another control to move the focus to.
class LineEditorRun {
public:
    explicit LineEditorRun(std::unique_ptr<DvSFieldWidget> lineEditor)
        : editor(std::move(lineEditor))
        , m_run(*editor)
        , line(m_run.find<QLineEdit>("lineEdit"))
        , m_elsewhere(new QLineEdit)
    {
        m_run.window.layout()->addWidget(m_elsewhere);
        m_run.window.show();
        [this] { QVERIFY(QTest::qWaitForWindowActive(&m_run.window, testPatience)); }();
        m_elsewhere->setFocus();
    }
    LineEditorRun(std::unique_ptr<DvSFieldWidget> lineEditor, NxField& field)
        : LineEditorRun(std::move(lineEditor))
    {
        select(&field);
    }

    /// Gives the editor another field, as a dock does.
    void select(NxField* field) { m_run.select(field); }

    /// Replaces the text of the line key by key.
    void type(const QString& text)
    {
        enter();
        line->selectAll();
        if (text.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        else
            QTest::keyClicks(line, text);
    }
    void enter() { line->setFocus(); }
    void leave() { m_elsewhere->setFocus(); }
    void pressReturn()
    {
        enter();
        QTest::keyClick(line, Qt::Key_Return);
    }
    /// Clicks a button by its name.
    void click(const char* button) { QTest::mouseClick(m_run.find<QPushButton>(button), Qt::LeftButton); }
    template <typename Child>
    [[nodiscard]] Child* find(const char* name) const
    {
        return m_run.find<Child>(name);
    }

    std::unique_ptr<DvSFieldWidget> editor;

private:
    EditorRun m_run;

public:
    QLineEdit* line;

private:
    QLineEdit* m_elsewhere; // the window's
};
