#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include <chrono>

/// Long work on the rows of a list, done in slices.
class ListJob : public FileJob {
    Q_OBJECT

public:
    /// How many rows are worked on between two looks at the clock.
    static constexpr int rowsPerPart = 4096;
    /// After this time no further part is begun, so that a slice with its last part takes less than 8 ms.
    static constexpr std::chrono::microseconds partsLength{6000};

    /// Tests pass a clock of their own.
    explicit ListJob(SliceClock::Clock clock = &std::chrono::steady_clock::now);

    void start() override;
    /// Does all of the work at once.
    void runAll();

protected:
    void runSlice() override;
    /// Does a part of the work, of less than a millisecond. Returns whether there is more. It may call `fail` and then
    /// returns false.
    virtual bool runPart() = 0;
    /// The share of the work that is done, 0 to 1.
    [[nodiscard]] virtual double share() const = 0;
    /// Ends the job with `failed` after this part.
    void failWith(const QString& message) { m_failure = message; }

private:
    void end();

    SliceClock::Clock m_clock;
    QString m_failure;
};
