#pragma once

#include <QColor>
#include <QDialog>
#include <QSize>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// What a picture of the scene is to be like: its size, from where it is seen, and its background. Deletes itself when
/// it is closed.
class PictureDialog : public QDialog {
    Q_OBJECT

public:
    /// `places` are the names of the places that the scene can be seen from.
    PictureDialog(const QSize& size, const QStringList& places, QWidget* parent);

    [[nodiscard]] QSize size() const;
    /// The index of the place that was chosen.
    [[nodiscard]] int place() const;
    [[nodiscard]] QColor background() const;
    [[nodiscard]] bool hasGrid() const;

private:
    void build();
    QSpinBox* addSide(const char* name, const QString& label, int pixels);
    void update();

    QSpinBox* m_width;
    QSpinBox* m_height;
    QComboBox* m_place;
    QComboBox* m_background;
    QCheckBox* m_grid;
    QLabel* m_message;
    QPushButton* m_export = nullptr;
};
