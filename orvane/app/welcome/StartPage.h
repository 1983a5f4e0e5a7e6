#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QVBoxLayout;

/// The central page while no scene is open: buttons that open or make one, recent files, and examples.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    void setRecentFiles(const QStringList& fileNames);

Q_SIGNALS:
    void openRequested();
    void newRequested();
    void fileChosen(const QString& fileName);

private:
    QLabel* addLinks(QVBoxLayout* layout, const char* name);

    QLabel* m_recent;
    QLabel* m_examples;
};
