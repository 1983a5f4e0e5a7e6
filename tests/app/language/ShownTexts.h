#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QTreeView>
#include <QWidget>

/// A text of a control, and where it is.
struct ShownText {
    QString place; // of the object below the window, and of the text in it
    QString text;
    bool operator==(const ShownText&) const = default;
};

/// The fixed texts of a window and all that is in it: of controls and actions, hidden ones too. What the rows of views
/// and the lines of editors contain are values, which are left out.
class ShownTexts {
public:
    static QList<ShownText> of(const QObject& window)
    {
        ShownTexts texts;
        texts.visit(window, QString());
        return texts.m_texts;
    }

private:
    void add(const QString& place, const char* kind, const QString& text)
    {
        if (!text.isEmpty())
            m_texts.append({place + u' ' + QLatin1String(kind), text});
    }

    void visit(const QObject& object, const QString& parent)
    {
        const QString name = object.objectName();
        const QString place = parent + u'/' + QString::fromLatin1(object.metaObject()->className())
            + (name.isEmpty() ? name : QLatin1Char(':') + name);
        if (const auto* const widget = qobject_cast<const QWidget*>(&object))
            addWidget(*widget, place);
        else if (const auto* const action = qobject_cast<const QAction*>(&object))
            addAction(*action, place);
        for (const QObject* const child : object.children())
            visit(*child, place);
    }

    void addAction(const QAction& action, const QString& place)
    {
        add(place, "text", action.text());
        add(place, "tool tip", action.toolTip());
        add(place, "status tip", action.statusTip());
    }

    void addWidget(const QWidget& widget, const QString& place)
    {
        add(place, "title", widget.windowTitle());
        add(place, "tool tip", widget.toolTip());
        add(place, "status tip", widget.statusTip());
        add(place, "name", widget.accessibleName());
        add(place, "description", widget.accessibleDescription());
        add(place, "what's this", widget.whatsThis());
        if (const auto* const label = qobject_cast<const QLabel*>(&widget))
            add(place, "text", label->text());
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            add(place, "text", button->text());
        if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
            add(place, "placeholder", line->placeholderText());
        if (const auto* const edit = qobject_cast<const QPlainTextEdit*>(&widget))
            add(place, "placeholder", edit->placeholderText());
        if (const auto* const box = qobject_cast<const QGroupBox*>(&widget))
            add(place, "title", box->title());
        if (const auto* const menu = qobject_cast<const QMenu*>(&widget))
            add(place, "title", menu->title());
        if (const auto* const bar = qobject_cast<const QProgressBar*>(&widget))
            add(place, "format", bar->format());
        addLists(widget, place);
    }

    void addLists(const QWidget& widget, const QString& place)
    {
        if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < box->count(); ++i)
                add(place, "choice", box->itemText(i));
        }
        if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                add(place, "tab", tabs->tabText(i));
        }
        // Of a hidden header nobody sees the texts.
        const QHeaderView* header = nullptr;
        if (const auto* const tree = qobject_cast<const QTreeView*>(&widget))
            header = tree->header();
        if (const auto* const table = qobject_cast<const QTableView*>(&widget))
            header = table->horizontalHeader();
        if (header == nullptr || header->isHidden() || header->model() == nullptr)
            return;
        for (int i = 0; i < header->count(); ++i) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                add(place, "header", header->model()->headerData(i, Qt::Horizontal, role).toString());
        }
    }

    QList<ShownText> m_texts;
};
