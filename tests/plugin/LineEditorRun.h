#pragma once

#include "plugin/EditorHarness.h"

#include <QLineEdit>
#include <QPushButton>

/// A loaded and shown editor with one line, in an active window that has another control to move the focus to.
template <typename Editor>
class LineEditorRun {
public:
    LineEditorRun()
        : m_run(editor)
        , line(m_run.template find<QLineEdit>("lineEdit"))
        , m_elsewhere(new QLineEdit)
    {
        m_run.window.layout()->addWidget(m_elsewhere);
        m_run.window.show();
        [this] { QVERIFY(QTest::qWaitForWindowActive(&m_run.window)); }();
        m_elsewhere->setFocus();
    }
    explicit LineEditorRun(NxField& field)
        : LineEditorRun()
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
    /// Clicks one of the two buttons.
    void click(const char* button) { QTest::mouseClick(m_run.template find<QPushButton>(button), Qt::LeftButton); }
    [[nodiscard]] bool ignoreIsChecked() const
    {
        return m_run.template find<QPushButton>("m_ignoreButton")->isChecked();
    }

    Editor editor;

private:
    EditorRun m_run;

public:
    QLineEdit* line;

private:
    QLineEdit* m_elsewhere; // the window's
};
