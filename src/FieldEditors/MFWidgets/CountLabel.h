#pragma once

#include <QLabel>

/// A label for one centred line, such as a count, that changes often and must cost little then.
///
/// The line has a rich text around it, as other labels of the editors have, but is painted without the document that
/// a label makes of such a text. The label is as large as the line, and fixed for its layout; otherwise each new count
/// would have the whole dock laid out and painted anew, which takes longer than to show a row that was added.
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
