#pragma once

#include "orvane/app/welcome/FileLookup.h"
#include "orvane/app/welcome/Thumbnails.h"

#include <QStringList>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class RecentFiles;
class RecentModel;
class RecentView;

/// The central page while no scene is open: buttons that open or make one, recent files as pictures, and examples.
class StartPage : public QWidget {
    Q_OBJECT

public:
    /// With more files than this there is a line to search in them.
    static constexpr int manyFiles = 8;

    /// The recent files live longer.
    explicit StartPage(RecentFiles& recent, QWidget* parent = nullptr);
    /// With a cache of its own, and another way to look at files.
    StartPage(RecentFiles& recent, const Thumbnails& thumbnails, const FileLookup::Look& look,
        std::chrono::milliseconds patience, QWidget* parent = nullptr);
    ~StartPage() override;

Q_SIGNALS:
    void openRequested();
    void newRequested();
    void fileChosen(const QString& fileName);
    /// The file, or with an empty name none, is wanted in another window.
    void windowRequested(const QString& fileName);
    void failed(const QString& message);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QBoxLayout* makeTop();
    [[nodiscard]] QBoxLayout* makeHeading();
    [[nodiscard]] QBoxLayout* makeMissing();
    void setTexts();
    void setFonts();
    void listFiles();
    void showMissing();
    void showExamples();
    void removeMissing();

    RecentFiles& m_recent;
    RecentModel* m_model;
    QLabel* m_title;
    QLabel* m_hint;
    QPushButton* m_open;
    QPushButton* m_new;
    QLabel* m_heading;
    QLineEdit* m_search;
    RecentView* m_files;
    QLabel* m_missing;
    QPushButton* m_removeMissing;
    QLabel* m_examples;
    QVBoxLayout* m_layout;
};
