#pragma once

#include "orvane/app/fields/FieldMark.h"
#include "orvane/app/fields/FieldTableSettings.h"
#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include <QWidget>

#include <functional>
#include <vector>

class AppSettings;
class FieldFilterBar;
class FieldTableModel;
class FieldTableView;
class FieldTextDelegate;
class NxField;
class NxFieldContainer;
class NxMField;
class NxNode;
class OrvServices;
class QHBoxLayout;
class QLabel;
class QStackedLayout;
class ValueDelegate;

/// The table of the fields of one or several nodes, with the names of the nodes above it. There may be several panels.
class FieldPanel : public QWidget {
    Q_OBJECT

public:
    /// The services and the settings live longer. Panels with different names keep their columns apart.
    FieldPanel(OrvServices& services, AppSettings& settings, QWidget* parent = nullptr, const QString& name = {});
    ~FieldPanel() override;

    /// Shows the fields of a node; null for none.
    void setNode(NxFieldContainer* node);
    /// Shows the fields that all nodes have. The first one is the node that was selected last.
    void setNodes(const std::shared_ptr<const FieldSet::Nodes>& nodes);
    /// Shows the name of the node again, which may have changed.
    void updateHeading();
    /// Selects the row of a field, or none. Emits nothing.
    void setCurrentField(const NxField* field);
    /// The field whose row is selected; null for none.
    [[nodiscard]] NxField* currentField() const;

    [[nodiscard]] FieldTableModel* model() const noexcept { return m_model; }
    [[nodiscard]] FieldTableView* view() const noexcept { return m_view; }
    [[nodiscard]] FieldWriter& writer() noexcept { return m_writer; }
    [[nodiscard]] ValueDelegate* values() const noexcept { return m_values; }
    [[nodiscard]] FieldFilterBar* filterBar() const noexcept { return m_filter; }
    /// Where the folder of the scene's file comes from, at which relative paths begin.
    void setSceneFolder(std::function<QString()> folder);
    /// At the end of the heading, for tools of whoever shows the panel.
    [[nodiscard]] QHBoxLayout* headingTools() const noexcept { return m_tools; }
    /// Makes the field of a row a favourite, or no favourite.
    void toggleFavorite(const QModelIndex& index);
    /// Sets whether the field of a row is written only when its edit is done.
    void setDeferred(const QModelIndex& index, bool deferred);
    /// Shows why something couldn't be done beside the current row.
    void showFailure(const QString& message);

Q_SIGNALS:
    /// The user chose a row; null for a row without a field.
    void fieldChosen(NxField* field);
    /// The user wants to see a list, by a double click on it or a key.
    void listRequested(NxMField* list);
    /// The user wants to go on in the editor of the field's dock.
    void editorRequested();
    /// The user looked for the nodes with the value of a row. There are two at least.
    void nodesFound(const std::vector<NxNode*>& nodes);

private:
    void buildPage(QWidget* page);
    void buildColumns();
    void buildHint();
    void connectView();
    void applyFilter();
    void unfoldGroups();
    void updateTexts();
    void foldingChanged(const QModelIndex& index, bool folded);
    void useMark(FieldMark mark, const QModelIndex& index);
    /// Changes which rows there are, and keeps the row of the current field selected.
    template <typename Change>
    void changeRows(Change change);

    FieldTableSettings m_settings;
    FieldWriter m_writer;
    FieldTableModel* m_model;
    FieldTableView* m_view;
    ValueDelegate* m_values;
    FieldTextDelegate* m_names;
    FieldTextDelegate* m_types;
    FieldFilterBar* m_filter;
    QLabel* m_icon;
    QLabel* m_heading;
    QHBoxLayout* m_tools;
    QLabel* m_nothing;
    QWidget* m_hint;
    QStackedLayout* m_pages;
    bool m_settingCurrent = false;
    bool m_folding = false; // by the panel itself
};
