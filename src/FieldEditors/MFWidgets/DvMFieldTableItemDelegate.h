#pragma once

#include "FieldEditors/EditorKinds.h"

#include <QItemDelegate>

class DvMFieldWidget;
class QLineEdit;

/// Paints the cells of a row table with the texts of its owner, and makes their editors.
///
/// The value kind decides what a cell takes. In a table of one column the kinds `Int16`, `UInt16`, `Int32`, `UInt32`
/// and `Float` are edited with a slider, everything else in a line.
class DvMFieldTableItemDelegate : public QItemDelegate {
    Q_OBJECT

public:
    /// `table` is the delegate's parent. `owner` isn't owned and outlives the delegate.
    DvMFieldTableItemDelegate(DvMFieldWidget* owner, QObject* table);
    ~DvMFieldTableItemDelegate() override;

    /// `kind` is the number of an `orvane::CellKind`; any other gives a line without a validator.
    void setValueKind(int kind) { m_valueKind = kind; }
    void setRealRange(double min, double max);
    void setRangeBounded(bool bounded) { m_bounded = bounded; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Writes a changed line that its validator accepts to the field. A slider has written it already.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

public Q_SLOTS:
    /// Gives a line the validator of the value kind, which the line owns.
    virtual void installValidator(QLineEdit* edit) const;

protected:
    /// Paints the text of a cell, cut if the cell is too narrow for it.
    static void paintText(QPainter* painter, const QStyleOptionViewItem& option, const QString& text);
    /// Takes an editor out of its cell and returns it as a line, or null if it isn't one.
    QLineEdit* takeLine(QWidget* editor, const QModelIndex& index) const;
    /// Whether the line's validator, if it has one, accepts its text.
    static bool isAcceptable(const QLineEdit* line);

    DvMFieldWidget* m_owner;
    int m_valueKind = orvane::kindNumber(orvane::CellKind::Text);
    int m_intMax = 10;
    int m_intMin = 0;
    double m_realMax = 10.0;
    double m_realMin = 0.0;
    bool m_bounded = false;

private:
    [[nodiscard]] orvane::CellKind valueKind() const { return static_cast<orvane::CellKind>(m_valueKind); }
    [[nodiscard]] QWidget* makeLine(QWidget* parent, const QString& text) const;
    [[nodiscard]] QWidget* makeSlider(QWidget* parent, int row, const QString& text) const;
};
