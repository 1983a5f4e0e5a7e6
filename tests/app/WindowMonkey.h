#pragma once

#include "app/MonkeyFiles.h"

#include "orvane/app/MainWindow.h"
#include "orvane/app/Session.h"

#include <QDialog>
#include <QFileDialog>
#include <QHash>
#include <QMessageBox>
#include <QMultiHash>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <random>

class FileFlow;
class NxGroup;

/// Works the window of the tool at random: files that are opened, added, saved, exported and cancelled, dialogs, edits,
/// closes and quits, each at any moment of any other. It checks after each step that nothing reached another scene than
/// the one that it was meant for, and that no change was lost without a question.
class WindowMonkey : public QObject {
public:
    /// Counts what has happened, by its kind, in `done`, which lives longer.
    WindowMonkey(unsigned seed, QHash<QString, int>& done);
    ~WindowMonkey() override;

    /// Does one thing, and lets the event loop turn a few times.
    void step();
    /// Cancels dialogs and lets all jobs end; then the window must do what it is asked for.
    void checkItStillWorks();

private:
    [[nodiscard]] int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }

    void makeWindow();
    void act();
    void askForFile();
    void edit();
    void useWindow();
    void answer(QDialog* dialog);
    void answerOthers();
    void choose(QFileDialog* dialog);
    void pressRandomKey(QWidget* widget);
    void leaveWindow();

    void takeNewScene();
    void noteSave(const QString& fileName);
    void noteDialog();
    void checkAdds();
    void checkFiles();

    [[nodiscard]] static QString openNames();
    [[nodiscard]] QDialog* openDialog() const;
    [[nodiscard]] FileFlow* flow() const;
    [[nodiscard]] NxGroup* scene() const;

    std::mt19937 m_random;
    MonkeyFiles m_files;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<MainWindow> m_window;
    QTimer m_others; // answers the dialogs of editors, and questions inside of dialogs

    int m_stamp = 0; // of the open scene: in the name of one of its nodes, so that its file shows whose it is
    int m_addsThere = 0; // added groups in the scene as it was read
    int m_addsAsked = 0; // for the open scene
    bool m_discarded = false;
    QPointer<QDialog> m_dialog; // of the tool, that is open
    int m_dialogStamp = 0; // of the scene that it is about
    QMultiHash<QString, int> m_stampsFor; // which scenes may be in which file
    QHash<QString, int>& m_done;
};
