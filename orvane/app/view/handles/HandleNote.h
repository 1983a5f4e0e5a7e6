#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/// A line at the lower border of the view that says why what is selected can't be moved, with an offer to change that.
class HandleNote : public QFrame {
    Q_OBJECT

public:
    explicit HandleNote(QWidget* view);

    /// Shows a text; without an offer there is no button. The empty text hides the line.
    void showText(const QString& text, const QString& offer = {});

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user takes the offer.
    void accepted();

private:
    void place();

    QLabel* m_text;
    QPushButton* m_offer;
};
