#pragma once

#include "app/window/MonkeyFiles.h"
#include "app/window/SceneMarks.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include <QDialog>
#include <QFileDialog>
#include <QHash>
#include <QMessageBox>
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
    /// Cancels dialogs and jobs. Then the window must do what it is asked for, or show why not, while other requests
    /// wait; and do it once none waits.
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

    void checkItAnswers();
    void settle();

    [[nodiscard]] bool hasNewScene(int before) const;
    [[nodiscard]] QString state() const;
    [[nodiscard]] QDialog* openDialog() const;
    [[nodiscard]] FileFlow* flow() const;
    [[nodiscard]] NxGroup* scene() const;

    std::mt19937 m_random;
    MonkeyFiles m_files;
    SceneMarks m_marks;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<MainWindow> m_window;
    QTimer m_others; // answers the dialogs of editors, and questions inside of dialogs

    int m_addsThere = 0; // added groups in the scene as it was read
    int m_addsAsked = 0; // for the open scene
    bool m_discarded = false;
    QPointer<QDialog> m_dialog; // of the tool, that is open
    int m_dialogMark = 0; // of the scene that it is about
    QHash<QString, int>& m_done;
};
