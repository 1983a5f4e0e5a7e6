#pragma once

#include <string>
#include <vector>

namespace bench {

/// One line of the table: what the tool needs beside what the least that could do the same needs.
struct Figure {
    std::string name;
    /// Of `value` and `baseline`, such as "ms" or "bytes".
    std::string unit;
    double value = 0;
    /// 0 for a figure whose bar is a plain number in its unit.
    double baseline = 0;
    /// The most that `value / baseline`, or `value` itself without a baseline, may be; 0 for a figure without a bar.
    double bar = 0;
};

/// Writes the figure to the standard output as one line with tabs in it, which script/bench makes the table from.
void report(const Figure& figure);

/// The value in the middle; of an even number of values the upper one. The list isn't empty.
double median(std::vector<double> values);

} // namespace bench
