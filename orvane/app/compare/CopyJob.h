#pragma once

#include "orvane/app/files/FileJob.h"

#include <QString>

#include <functional>

/// Makes a text of many lines in slices and puts it on the clipboard.
class CopyJob : public FileJob {
    Q_OBJECT

public:
    /// Returns a line without its end, of `count`, from 0 on.
    using Line = std::function<QString(int number)>;

    CopyJob(int count, Line line);

    void start() override;

protected:
    void runSlice() override;

private:
    int m_count;
    int m_next = 0;
    Line m_line;
    QString m_text;
};
