#pragma once

#include <QLabel>

/// A label for one centred line, such as a count, that changes often and must be cheap to change.
///
/// Its text is rich, as in other labels of the editors, but the line is painted without the document that a label makes
/// of a rich text. The label has the fixed size of its line. Otherwise each new count would lay out and repaint the
/// whole dock, which takes longer than showing an added row.
class CountLabel : public QLabel {
    Q_OBJECT

public:
    explicit CountLabel(QWidget* parent);

    /// Shows `line`. `richText` is the label's text: the same line with its markup.
    void setLine(const QString& line, const QString& richText);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitSize();

    QString m_line;
};
