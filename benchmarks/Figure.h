#pragma once

#include <string>
#include <vector>

namespace bench {

/// A line of the table: a measurement and its baseline, the cheapest code that could do the same.
struct Figure {
    std::string name;
    /// Of `value` and `baseline`, such as "ms" or "bytes".
    std::string unit;
    double value = 0;
    /// 0 for a figure whose bar is a plain number in its unit.
    double baseline = 0;
    /// The greatest `value / baseline` allowed, or the greatest `value` without a baseline; 0 for a figure without a
    /// bar.
    double bar = 0;
};

/// Writes the figure to standard output as one line with tabs, from which script/bench makes the table.
void report(const Figure& figure);

/// The median; of an even number of values the upper one. The list must not be empty.
double median(std::vector<double> values);

} // namespace bench
