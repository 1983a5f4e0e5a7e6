#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QStringList>

class ActionKeys;
class KeyLine;
class KeysModel;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QMainWindow;
class QPushButton;
class QTableView;

/// The page of keys: every action with its keys, which can be searched and changed.
class KeysDialog : public QDialog {
    Q_OBJECT

public:
    /// Both live longer.
    KeysDialog(QMainWindow* window, ActionKeys& keys);
    ~KeysDialog() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void buildView();
    void buildButtons(QBoxLayout* layout);
    void update();
    void filter(const QString& text);
    void begin();
    void take(const QKeySequence& key);
    void takeOver();
    void offer(const QString& message, const QKeySequence& key = {}, const QStringList& from = {});
    void removeKeys();
    void reset();
    [[nodiscard]] QString current() const;

    ActionKeys& m_keys;
    KeysModel* m_model;
    QLineEdit* m_filter;
    QTableView* m_view;
    KeyLine* m_line;
    QPushButton* m_remove;
    QPushButton* m_reset;
    QPushButton* m_resetAll;
    QPushButton* m_takeOver;
    QLabel* m_message;
    QKeySequence m_offered; // a key that other actions have
    QStringList m_offeredFrom;
};
