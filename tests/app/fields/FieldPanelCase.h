#pragma once

#include "Patience.h"
#include "app/AppScenes.h"
#include "app/ItemClicks.h"
#include "app/fields/values/ManyNodes.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/fields/FieldFilterBar.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/fields/MarkDelegate.h"
#include "orvane/app/input/FilterLine.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

#include <memory>

/// A test of the field panel in a window, over an open scene of some nodes.
class FieldPanelCase : public QObject {
protected:
    /// Opens a scene of the nodes and shows the first one.
    void open(const std::vector<NxRef<NxNode>>& nodes)
    {
        close();
        m_many = std::make_unique<ManyNodes>(nodes);
        m_settings = std::make_unique<AppSettings>(AppSettings::Mode::None);
        show();
        m_panel->setNode(nodes.front().get());
    }
    /// Shows another panel over the same scene and settings.
    void show()
    {
        m_panel.reset();
        m_panel = std::make_unique<FieldPanel>(m_many->services(), *m_settings);
        m_panel->resize(600, 800);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    }
    void showAll() { m_panel->setNodes(m_many->nodes()); }
    void close()
    {
        m_panel.reset();
        m_many.reset();
    }

    [[nodiscard]] FieldTableView* view() { return m_panel->view(); }
    [[nodiscard]] FieldTableModel* model() { return m_panel->model(); }
    [[nodiscard]] NxField& field(const char* name, std::size_t node = 0) { return m_many->field(node, name); }
    [[nodiscard]] QModelIndex row(const char* name, int column = FieldTableModel::NameColumn)
    {
        const QModelIndex index = model()->indexOf(&field(name));
        return index.siblingAtColumn(column);
    }
    [[nodiscard]] std::string text(const char* name, std::size_t node = 0)
    {
        VbString value;
        field(name, node).get(value);
        return std::string(value.view());
    }
    [[nodiscard]] QStringList groups()
    {
        QStringList titles;
        for (int group = 0; group < model()->rowCount(); ++group)
            titles += model()->index(group, 0).data().toString();
        return titles;
    }

    void click(const QModelIndex& index, Qt::KeyboardModifiers modifiers = {})
    {
        ItemClicks::click(view(), index, modifiers);
        ManyNodes::finish();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(view(), key, modifiers);
        ManyNodes::finish();
    }
    void clickMark(FieldMark mark, const char* name)
    {
        const QModelIndex index = row(name, FieldTableModel::MarkColumn);
        view()->scrollTo(index);
        QStyleOptionViewItem option;
        option.rect = view()->visualRect(index);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, MarkDelegate::placeOf(mark, option).center());
        ManyNodes::finish();
    }

    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<ManyNodes> m_many;
    std::unique_ptr<FieldPanel> m_panel;
};
