#pragma once

#include "orvane/app/actions/PickerItem.h"

#include <QList>
#include <QObject>

/// What a picker searches: it is told what the user types, works in slices and gives the rows that it has so far.
class PickerSource : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The name of the picker, what may be typed into its line, and what it says without rows.
    struct Texts {
        QString name;
        QString hint;
        QString nothing;
    };
    [[nodiscard]] virtual Texts texts() const = 0;
    /// Starts to search. The empty text gives what the user may want most.
    virtual void search(const QString& text) = 0;
    /// Goes on for at most one slice. Whether anything is left to do.
    virtual bool work() = 0;
    /// Whether `items` has changed since it was called last.
    [[nodiscard]] virtual bool hasNews() const { return true; }
    /// The rows so far, the best one first.
    [[nodiscard]] virtual QList<PickerItem> items() = 0;
    /// The user chose a row of `items`, and the picker has closed.
    virtual void choose(quint64 id) = 0;
    /// The picker has closed.
    virtual void end() { }

Q_SIGNALS:
    /// What is searched has changed, so that the rows aren't valid any more.
    void changed();
    /// There is nothing to search any more.
    void gone();
};
