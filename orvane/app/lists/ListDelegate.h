#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

class ListEdits;
class ListModel;
class NumberLine;

/// Paints the cells of a list, and edits them in place: numbers and formulas, texts, choices and check boxes.
class ListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// Both live longer.
    ListDelegate(ListModel& model, ListEdits& edits, QObject* parent = nullptr);

    /// The text that has been typed into the open editor and not written yet; empty if there is none.
    [[nodiscard]] QString pendingText() const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

Q_SIGNALS:
    /// An edit ended with a key that goes on to another cell.
    void moveRequested(int columns, int rows);
    /// Something can't be written. The cell keeps its value.
    void refused(const QString& message);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* makeNumberLine(QWidget* parent, const QPersistentModelIndex& index) const;
    [[nodiscard]] bool write(QWidget* editor);
    void writeNumber(NumberLine& line, const QModelIndex& index) const;
    void paintSwatch(QPainter& painter, const QStyleOptionViewItem& option, const QColor& color) const;
    static void restore(QWidget* editor);
    void close(QWidget* editor);
    [[nodiscard]] bool leaveWithKey(QWidget* editor, int key, bool isBackwards);

    ListModel& m_model;
    ListEdits& m_edits;
    mutable QPointer<QWidget> m_editor;
    mutable QPersistentModelIndex m_index; // of the open editor
};
