#pragma once

#include "orvane/app/fields/editors/CellEdit.h"
#include "orvane/app/input/FoundTextDelegate.h"

#include <QPointer>

#include <memory>
#include <optional>

class AppSettings;
class CellEditor;
class CellServices;
class FieldSet;
class FieldWriter;
class QAbstractItemView;
class ValueCell;
struct CellPaint;

/// Shows and edits the values of fields in a column of a view, each with its kind of cell.
///
/// The model gives the fields of a row as `FieldRoles::FieldSetRole`; rows without fields, and lists, are shown as
/// usual. A click on a value edits it, and so do the edit keys of the view. Tab goes on to the next part of the value
/// and then to the next row, Shift+Tab back. The model must flag the cells as editable. User-interface thread only.
class ValueDelegate : public FoundTextDelegate {
    Q_OBJECT

public:
    /// The view owns it. The writer and the settings live longer.
    ValueDelegate(QAbstractItemView* view, FieldWriter& writer, AppSettings* settings = nullptr);
    ~ValueDelegate() override;

    [[nodiscard]] CellServices& services() const noexcept { return *m_services; }
    /// Opens the editor of a part of a value. False if there is none.
    bool edit(const QModelIndex& index, int part, CellEdit::Reason reason);
    /// The fields of a cell that this paints; null for rows that are shown as usual: those without fields, and lists.
    [[nodiscard]] static const FieldSet* shownFields(const QModelIndex& index);
    /// The area of the value in its cell.
    [[nodiscard]] static QRect areaOf(const QWidget& view, const QRect& cell);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    [[nodiscard]] bool isSearched(const QModelIndex& index) const override;

private:
    struct Opening {
        int part = 0;
        CellEdit::Reason reason = CellEdit::Reason::Key;
    };
    struct Press {
        QPersistentModelIndex index;
        QPoint position;
    };

    void showPending();
    [[nodiscard]] CellPaint cellPaint(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void handleClick(const QModelIndex& index, const QRect& area, const QPoint& position);
    void close(CellEditor* editor, const QPersistentModelIndex& index, int next);
    void editBeside(const QModelIndex& index, int part, int step);
    [[nodiscard]] QModelIndex nextEditable(const QModelIndex& index, int step) const;
    [[nodiscard]] bool dragOver(QEvent* event);

    QPointer<QAbstractItemView> m_view;
    const QObject* m_viewport; // its own; events still come while the view is being destroyed
    std::unique_ptr<CellServices> m_services;
    mutable Opening m_opening; // of the next editor
    std::optional<Press> m_press;
};
