#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>

/// Answers the next modal dialog of a class, the toolkit's own and not the system's, when its loop runs.
template <typename Dialog>
class DialogDriver {
public:
    /// The answer must end in the dialog's closing.
    explicit DialogDriver(std::function<void(Dialog&)> answer)
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
        QTimer::singleShot(0, &m_context, [this, answer = std::move(answer)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            ++answered;
            answer(*dialog);
        });
    }
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;
    ~DialogDriver() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

    int answered = 0;

private:
    QObject m_context;
};
