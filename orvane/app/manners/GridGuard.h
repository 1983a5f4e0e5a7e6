#pragma once

#include <QObject>

#include <optional>
#include <vector>

class NxField;
class QWidget;

/// Keeps a value of a list whole while the grid for its numbers opens.
///
/// An editor of lists may write the row with each line of the grid that it fills, while the other lines still show
/// something else, and with rounded numbers. So the row is remembered when a button of the editor is pressed. When the
/// grid opens, its lines get the numbers of the row, with all their digits, and the row gets its value back if it was
/// changed.
class GridGuard : public QObject {
    Q_OBJECT

public:
    explicit GridGuard(QObject* parent);
    ~GridGuard() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Row {
        NxField* field;
        int row;
        std::vector<double> numbers;
    };

    [[nodiscard]] static std::optional<Row> rowOf(const QWidget* widget);
    void gridShown(const QWidget* popup);

    std::optional<Row> m_pressed; // since the last press of the mouse
};
