#pragma once

#include <QValidator>

#include <limits>

/// Limits a line to unsigned numbers of 32 bits. Contract: the same as `QUIntValidator`, its name notwithstanding.
class QULongValidator final : public QValidator {
    Q_OBJECT

public:
    QULongValidator(unsigned bottom, unsigned top, QObject* parent);
    /// Takes every number of 32 bits.
    explicit QULongValidator(QObject* parent);

    /// Empty input is acceptable; a number outside of the range is intermediate.
    State validate(QString& input, int& position) const override;
    /// Sets the bounds, which both belong to the range.
    virtual void setRange(unsigned bottom, unsigned top);

private:
    unsigned m_bottom = 0;
    unsigned m_top = std::numeric_limits<unsigned>::max();
};
