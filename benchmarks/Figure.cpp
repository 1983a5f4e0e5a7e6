#include "Figure.h"

#include <algorithm>
#include <cstdio>

namespace bench {

void report(const Figure& figure)
{
    std::printf("figure\t%s\t%s\t%.6g\t%.6g\t%.6g\n", figure.name.c_str(), figure.unit.c_str(), figure.value,
        figure.baseline, figure.bar);
    std::fflush(stdout);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace bench
