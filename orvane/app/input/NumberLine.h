#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/input/NumberLimits.h"

#include "meridane/query/Expression.h"

#include <QLineEdit>

#include <optional>

/// A line for one number or formula. It doesn't write anywhere: its owner does, when a text is accepted.
///
/// - Return accepts the text, Escape restores what was shown before.
/// - Leaving the line accepts a text that makes sense. One that doesn't is replaced by what was shown before; a message
///   that stays for some seconds quotes it and says why, and the line's own undo brings it back.
/// - A text that can't be taken at Return stays, selected, with a message below it. So does one that the owner refuses
///   by calling `refuse` from a slot of `accepted`.
/// - The arrow keys up and down accept what is typed and ask for a step.
///
/// A number outside its soft range has the colour of a warning, one outside its hard range that of an error; both also
/// while it is typed. User-interface thread only.
class NumberLine : public QLineEdit {
    Q_OBJECT

public:
    /// A longer text isn't taken.
    static constexpr int longestText = static_cast<int>(meridane::Expression::mostBytes);

    explicit NumberLine(QWidget* parent = nullptr);
    ~NumberLine() override;

    /// Which numbers are taken. Without limits every finite number is.
    void setLimits(const orvane::NumberLimits& limits);
    [[nodiscard]] const orvane::NumberLimits& limits() const noexcept { return m_limits; }

    /// The present value, which is `x` in formulas, and the text that shows it. Drops what has been typed.
    void setValue(double value, const QString& shown);
    /// The same with the shortest text.
    void setValue(double value);
    /// Shows that there are several values. `x` is then each one's own, which only the owner knows.
    void setMixed(const QString& placeholder);
    /// The present value; nothing for several.
    [[nodiscard]] std::optional<double> value() const noexcept { return m_value; }

    /// Whether something has been typed that is neither accepted nor restored.
    [[nodiscard]] bool isPending() const;
    /// What the text means. Only in a slot of `accepted`.
    [[nodiscard]] const meridane::Expression& expression() const { return *m_expression; }
    /// The number that it means for the present value. Only in a slot of `accepted`; NaN if the text uses `x` and only
    /// the owner knows the values.
    [[nodiscard]] double number() const;
    /// Accepts what has been typed, as Return does. False when it was refused.
    bool accept();
    /// Shows the value again, as Escape does.
    void restore();
    /// Shows why the text can't be taken below the line. The text stays, selected, for mending.
    void refuse(const QString& why);

Q_SIGNALS:
    /// The typed text makes sense, and its result, if the line knows it, can be taken: see `expression`. What the line
    /// shows stays until the owner sets the value.
    void accepted();
    /// Nothing is to be written: Escape, Return on an untouched text, or leaving a text that can't be taken.
    void restored();
    /// A step up for more than 0, down for less: 1, with Shift 10, with Ctrl 0.1.
    void stepped(double factor);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] orvane::Result<meridane::Expression> readText() const;
    [[nodiscard]] orvane::Result<std::optional<double>> evaluate(const meridane::Expression& expression) const;
    [[nodiscard]] QString refusal();
    void step(const QKeyEvent& event);
    void leave();
    void showRange(std::optional<double> number);
    void refuseLongText();

    orvane::NumberLimits m_limits;
    std::optional<double> m_value = 0;
    QString m_shown;
    std::optional<meridane::Expression> m_expression; // the text that was accepted last
    bool m_refused = false;
};
