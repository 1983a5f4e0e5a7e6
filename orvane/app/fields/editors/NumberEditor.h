#pragma once

#include "orvane/app/fields/editors/CellEditor.h"
#include "orvane/app/input/NumberLimits.h"

#include <functional>

class NumberLine;

/// One number of the values of fields: a component, or one that is computed from several.
struct FieldNumber {
    std::function<double(const NxField&)> get;
    /// False if the field can't take it.
    std::function<bool(NxField&, double)> set;
    std::function<QString(const NxField&)> text;
    orvane::NumberLimits limits;
    QString name; ///< for people who can't see it
};

namespace orvane {

/// The number of a component of a field like this one.
[[nodiscard]] FieldNumber fieldNumber(const NxField& field, int component);
/// A step from a number of that field, within the limits and without the digits that only rounding gives.
[[nodiscard]] double stepped(const FieldNumber& number, const NxField& field, double change);

} // namespace orvane

/// Edits one number. Return, Tab and leaving write what is typed, Escape restores. The arrow keys up and down and the
/// wheel step and write at once; all steps until the editor closes are one step of the history, and Escape takes them
/// back.
class NumberEditor : public CellEditor {
    Q_OBJECT

public:
    NumberEditor(const CellEdit& edit, FieldNumber number, QWidget* parent);
    ~NumberEditor() override;

    void refresh() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void accept();
    void step(double factor);
    void show();
    void conclude(bool keep);
    [[nodiscard]] bool handleKey(int key);

    FieldNumber m_number;
    NumberLine* m_line;
    // Why the line accepts or restores.
    bool m_isStepping = false;
    bool m_isEscaping = false;
    bool m_isLive = false;
    int m_wheel = 0; // what is left of turns that weren't a whole step
};
